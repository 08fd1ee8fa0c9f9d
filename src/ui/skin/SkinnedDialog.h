#pragma once

#include <QDialog>

class QPainter;
class SkinButton;
class TitleBar;

/// A frameless dialog with the skin's title bar, edges and colours. A dialog makes its controls, sets its
/// size and calls `SkinDialog`, which centres it on the screen and gives it its frame. Escape, Alt+F4 and the
/// title bar's close button close it as `reject()` does; Enter presses the default button.
class SkinnedDialog : public QDialog
{
    Q_OBJECT

public:
    explicit SkinnedDialog(QWidget *owner);

    /// Height of the title bar, where the dialog's own content begins.
    int TitleHeight() const;

protected:
    void SkinDialog(const QString &title);
    /// Layout 1: `ok` alone at the right; any other: `ok` and `cancel` with three equal gaps. The tops are
    /// the dialog's.
    void SkinOkCancel(SkinButton *ok, SkinButton *cancel, int layout);
    /// The button that Enter presses unless another button has the focus.
    void SetDefaultButton(SkinButton *button) { m_defaultButton = button; }

    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

    SkinButton *XBtn_Sys_Close;
    TitleBar *ImgTitleBar;

private:
    void PaintFrame(QPainter &painter) const;

    SkinButton *m_defaultButton = nullptr;
};
