#pragma once

#include <QDialog>
#include <QPixmap>

class SkinButton;
class TitleBar;

/// A frameless dialog with the skin's title bar, edges and colours. A dialog makes its controls, sets its
/// size and calls `SkinDialog`, which centres it on the screen and paints the frame. Escape, Alt+F4 and the
/// title bar's close button close it as `reject()` does.
class SkinnedDialog : public QDialog
{
    Q_OBJECT

public:
    explicit SkinnedDialog(QWidget *owner);

    /// Height of the title bar, 0 before `SkinDialog`.
    int TitleHeight() const { return m_titleHeight; }

protected:
    void SkinDialog(const QString &title);
    /// Layout 1: `ok` alone at the right; any other: `ok` and `cancel` with three equal gaps. Tops are the
    /// dialog's.
    void SkinOkCancel(SkinButton *ok, SkinButton *cancel, int layout);

    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

    SkinButton *XBtn_Sys_Close;
    TitleBar *ImgTitleBar;

private:
    void PaintFrame(class QPainter &painter) const;

    QString m_title;
    int m_titleHeight = 0;
};
