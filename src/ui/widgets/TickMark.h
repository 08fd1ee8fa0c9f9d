#pragma once

class QPainter;
class QRectF;

/// The hook in a box that is ticked.
void PaintTickMark(QPainter &painter, const QRectF &box);
