#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

struct KeyLook
{
    QColor face;
    QColor edge; ///< the front of the key below its face
    QColor border;
    qreal lip; ///< how much of the front is seen; 0 for a key that is held down
    qreal radius;
};

/// Draws a key that fills `box` and stays inside it. Gives the rectangle of its face, where the legends go.
QRectF DrawKey(QPainter &painter, const QRectF &box, const KeyLook &look);

/// A key that is held down: its face lies lower in `box` by `depth`, in a shadow.
QRectF DrawSunkenKey(QPainter &painter, const QRectF &box, const KeyLook &look, qreal depth,
                     const QColor &shadow);
