#pragma once

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QPainterPath>
#include <QRectF>
#include <QString>

class QPainter;

/// What all pictures are put together from.
namespace Shapes {

struct TextStyle
{
    qreal pixelSize;
    bool bold;
    QColor color;
    Qt::AlignmentFlag alignment = Qt::AlignHCenter;
    /// An "&" is not drawn but underlines the letter behind it, which presses the button together with Alt.
    bool mnemonic = false;
};

QFont LabelFont(qreal pixelSize, bool bold);
qreal TextWidth(const QString &text, qreal pixelSize, bool bold);

/// One line of text, its capitals centred vertically in the box, its baseline on a device pixel.
void DrawLabel(QPainter &painter, const QRectF &box, const QString &text, const TextStyle &style);

void FillRounded(QPainter &painter, const QRectF &box, qreal radius, const QBrush &brush);

/// A filled box with a border inside its edges: crisp when the box lies on whole pixels.
void FillBordered(QPainter &painter, const QRectF &box, qreal radius, const QBrush &face,
                  const QColor &border, qreal borderWidth = 1);

/// A box that lies lower than what surrounds it: border, a light line inside it, and a soft shadow from
/// above.
void FillSunken(QPainter &painter, const QRectF &box, qreal radius, const QColor &face, const QColor &border,
                const QColor &shadow);

/// `amount` 0 gives `from`, 1 gives `to`.
QColor Mix(const QColor &from, const QColor &to, qreal amount);

QLinearGradient Vertical(const QRectF &box, const QColor &top, const QColor &bottom);

} // namespace Shapes
