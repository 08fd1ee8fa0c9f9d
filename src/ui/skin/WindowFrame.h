#pragma once

#include <QList>
#include <QPoint>
#include <QWidget>

class QPainter;

/// What all windows share, which have no frame of the platform's.
namespace Public_Function {

/// 1 when the usable width is below 1023 pixels, else 2.
int ScreenMode();

/// Makes the window cover `ScreenRect`, with a window manager or without one.
void CoverScreen(QWidget *window);

/// The two one-pixel frames along a full-screen window's outer edge.
void DrawWindowEdge(QPainter &painter, const QSize &window);

/// Paints what is exposed of a drill or test window: the tiled ground, the module label and background of
/// `kind` (0 to 23) at positions 0 and 1, and the four status icons at positions 2 to 5.
void PaintDrillWindow(int kind, QPainter &painter, const QSize &window, const QList<QPoint> &positions);

/// True, and the close request is made, when the event is Alt+F4 pressed where no window manager took it.
bool IsCloseKey(const class QKeyEvent *event);

} // namespace Public_Function

/// The drag area of a window's title: a press with the left button moves the window.
class TitleBar : public QWidget
{
    Q_OBJECT

public:
    explicit TitleBar(QWidget *window);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QPoint m_grip;
    bool m_movingByHand = false;
};
