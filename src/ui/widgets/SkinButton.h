#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QPixmap>

class SkinLibrary;

/// A button whose looks are the frames of one picture, side by side: normal, hovered, pressed, disabled and,
/// where the strip has a fifth, focused. Without a picture it is a plain button with its accessible name on
/// it. It takes the size of one frame. Space, Enter and Return press it; one that is checked looks pressed.
class SkinButton : public QAbstractButton
{
    Q_OBJECT

public:
    /// `name` as for SetName.
    explicit SkinButton(const QString &objectName, const QString &name, QWidget *parent);

    /// The accessible name. A letter with "&" in front presses the button together with Alt; the skin
    /// underlines it on the picture.
    void SetName(const QString &name);

    void SetButton(const QString &bitmap, const SkinLibrary &library, int frames = 4);

    /// Keeps the normal look at hand for the first paint.
    void LoadLook() const;

    QSize sizeHint() const override;

Q_SIGNALS:
    void MouseEntered();
    void MouseLeft();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    /// Null without a picture.
    QPixmap Look(int frame) const;

    QString m_bitmap;
    QSize m_frameSize;
    QColor m_focusColor{255, 164, 84};
    QColor m_innerFocusColor{40, 52, 76};
    int m_frames = 4;
};
