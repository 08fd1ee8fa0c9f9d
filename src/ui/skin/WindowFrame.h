#pragma once

#include <QColor>
#include <QList>
#include <QPoint>

class QKeyEvent;
class QPainter;
class QRect;
class QRegion;
class QSize;
class QWidget;
class SkinLibrary;

/// What all windows share, which have no frame of the platform's.
namespace Public_Function {

/// 1 when the usable width is below 1023 pixels, else 2.
int ScreenMode();

/// Makes the window cover `ScreenRect`, with a window manager or without one.
void CoverScreen(QWidget *window);

/// To be called before a full-screen window paints `exposed`: when that is all of it, its image is provided
/// for in one go, which for a new window takes a fifth of the time.
void PrepareToPaint(QWidget *window, const QRect &exposed);

/// The two one-pixel frames along a full-screen window's outer edge.
void DrawWindowEdge(QPainter &painter, const QSize &window);

/// Tiles the ground of the full-screen windows over `rect`, in step with the window's top left corner.
void TileMainGround(QPainter &painter, const QRect &rect, const SkinLibrary &library);

/// What the ground is without a skin.
inline constexpr QColor PlainGround{52, 66, 92};

/// The kind of the placement test, which has no tabs to lead elsewhere.
inline constexpr int PlacementTestKind = 24;

/// Paints what lies in `exposed` of a drill or test window: the tiled ground, the module label and background
/// of `kind` (0 to 24) at positions 0 and 1, and the four status icons at positions 2 to 5.
void PaintDrillWindow(int kind, QPainter &painter, const QRegion &exposed, const QList<QPoint> &positions);

/// True for Alt+F4, which arrives as a key press only where no window manager takes it.
bool IsCloseKey(const QKeyEvent *event);

} // namespace Public_Function
