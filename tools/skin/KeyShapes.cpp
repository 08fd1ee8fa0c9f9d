#include "KeyShapes.h"

#include "Shapes.h"

#include <QPainter>

QRectF DrawKey(QPainter &painter, const QRectF &box, const KeyLook &look)
{
    Shapes::FillRounded(painter, box, look.radius, look.border);
    Shapes::FillRounded(painter, box.adjusted(1, 1, -1, -1), look.radius - 1, look.edge);
    const QRectF face = box.adjusted(1, 1, -1, -1 - look.lip);
    Shapes::FillRounded(painter, face, look.radius - 1, look.face);
    // The light falls from above: a bright line along the face's upper edge.
    painter.save();
    QPainterPath shape;
    shape.addRoundedRect(face, look.radius - 1, look.radius - 1);
    painter.setClipPath(shape, Qt::IntersectClip);
    painter.fillRect(QRectF(face.left(), face.top(), face.width(), 1), QColor(255, 255, 255, 150));
    painter.restore();
    return face;
}

QRectF DrawSunkenKey(QPainter &painter, const QRectF &box, const KeyLook &look, qreal depth,
                     const QColor &shadow)
{
    const QRectF body = box.adjusted(0, depth, 0, 0);
    Shapes::FillRounded(painter, box, look.radius, shadow);
    Shapes::FillRounded(painter, body, look.radius, look.border);
    const QRectF face = body.adjusted(1, 1, -1, -1);
    Shapes::FillRounded(painter, face, look.radius - 1, look.face);
    painter.save();
    QPainterPath shape;
    shape.addRoundedRect(face, look.radius - 1, look.radius - 1);
    painter.setClipPath(shape, Qt::IntersectClip);
    for (int line = 0; line < 3; ++line)
        painter.fillRect(QRectF(face.left(), face.top() + line, face.width(), 1),
                         QColor(20, 28, 44, 60 - 20 * line));
    painter.restore();
    return face;
}
