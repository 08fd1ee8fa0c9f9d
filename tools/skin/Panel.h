#pragma once

#include "Picture.h"

#include <QRectF>
#include <QString>

class QPainter;
class Theme;

/// The parts that module backgrounds are put together from. All coordinates are those of the content area:
/// the tab strip takes its first 40 lines, the background begins below it.
namespace Panel {

constexpr int width = 994;
constexpr int tabStripHeight = 40;
constexpr int height = 664;
/// Left and right edge of the wells.
constexpr qreal wellLeft = 42;
constexpr qreal wellRight = 952;

/// A module background: `draw` gets a painter in the coordinates of the content area.
Picture Make(const QString &name, const std::function<void(QPainter &)> &draw);

/// Face and border. Its top line is the last line of the tab strip, which the lit tab opens.
void DrawBody(QPainter &painter, const Theme &theme);

/// A sunken field over the whole width, from `top` to `bottom`. `face` is a colour of the theme.
void DrawWell(QPainter &painter, const Theme &theme, qreal top, qreal bottom, const QString &face);

/// The field that a line to type or the typing itself is shown in.
void DrawTextBoxFrame(QPainter &painter, const Theme &theme, const QRectF &box);

/// The plate of the lesson's title.
void DrawTitlePlate(QPainter &painter, const Theme &theme);

/// The plate of time, speed, progress and accuracy, whose labels are 13 below `panelTop`.
void DrawStatusRow(QPainter &painter, const Theme &theme, qreal panelTop);

/// The mark in front of the hint line.
void DrawHintMark(QPainter &painter, const Theme &theme);

} // namespace Panel
