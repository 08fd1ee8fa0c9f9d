#include "Shapes.h"

#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace Shapes {

QFont LabelFont(qreal pixelSize, bool bold)
{
    QFont font(u"Liberation Sans"_s);
    font.setPixelSize(qRound(pixelSize));
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferVerticalHinting);
    font.setStyleStrategy(QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    return font;
}

qreal TextWidth(const QString &text, qreal pixelSize, bool bold)
{
    return QFontMetricsF(LabelFont(pixelSize, bold)).horizontalAdvance(text);
}

void DrawLabel(QPainter &painter, const QRectF &box, const QString &label, const TextStyle &style)
{
    const qsizetype mnemonic = style.mnemonic ? label.indexOf(u'&') : -1;
    const QString text = mnemonic < 0 ? label : QString(label).remove(mnemonic, 1);
    const QFont font = LabelFont(style.pixelSize, style.bold);
    const QFontMetricsF metrics(font);
    const qreal width = metrics.horizontalAdvance(text);
    qreal left = box.left();
    if (style.alignment == Qt::AlignHCenter)
        left += (box.width() - width) / 2;
    else if (style.alignment == Qt::AlignRight)
        left += box.width() - width;
    const qreal baseline = box.top() + (box.height() + metrics.capHeight()) / 2;

    painter.save();
    painter.setFont(font);
    painter.setPen(style.color);
    const QTransform &transform = painter.worldTransform();
    if (transform.type() > QTransform::TxScale) { // a turned or tilted text has no device pixels to sit on
        QPainterPath letters;
        letters.addText(left, baseline, font, text);
        painter.fillPath(letters, style.color);
    } else {
        const auto onDevicePixel = [scale = transform.m22()](qreal value) {
            return std::round(value * scale) / scale;
        };
        const QPointF start(onDevicePixel(left), onDevicePixel(baseline));
        painter.drawText(start, text);
        if (mnemonic >= 0) {
            const qreal from = onDevicePixel(metrics.horizontalAdvance(text.left(mnemonic)));
            const qreal wide = onDevicePixel(metrics.horizontalAdvance(text[mnemonic]));
            painter.fillRect(QRectF(start + QPointF(from, 2), QSizeF(wide, 1)), style.color);
        }
    }
    painter.restore();
}

void FillRounded(QPainter &painter, const QRectF &box, qreal radius, const QBrush &brush)
{
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawRoundedRect(box, radius, radius);
    painter.restore();
}

void FillBordered(QPainter &painter, const QRectF &box, qreal radius, const QBrush &face,
                  const QColor &border, qreal borderWidth)
{
    const QRectF inside = box.adjusted(borderWidth, borderWidth, -borderWidth, -borderWidth);
    const qreal insideRadius = std::max(0.0, radius - borderWidth);
    if (face.isOpaque()) {
        FillRounded(painter, box, radius, border);
    } else { // the border's colour must not show through the face
        QPainterPath ring;
        ring.setFillRule(Qt::OddEvenFill);
        ring.addRoundedRect(box, radius, radius);
        ring.addRoundedRect(inside, insideRadius, insideRadius);
        painter.fillPath(ring, border);
    }
    FillRounded(painter, inside, insideRadius, face);
}

void FillSunken(QPainter &painter, const QRectF &box, qreal radius, const QColor &face, const QColor &border,
                const QColor &shadow)
{
    FillRounded(painter, box, radius, border);
    const QRectF inside = box.adjusted(1, 1, -1, -1);
    FillRounded(painter, inside, radius - 1, face);
    painter.save();
    QPainterPath shape;
    shape.addRoundedRect(inside, radius - 1, radius - 1);
    painter.setClipPath(shape, Qt::IntersectClip);
    constexpr int shadowDepth = 4;
    for (int line = 0; line < shadowDepth; ++line) {
        QColor color = shadow;
        color.setAlphaF(shadow.alphaF() * static_cast<float>(shadowDepth - line) / shadowDepth);
        painter.fillRect(QRectF(inside.left(), inside.top() + line, inside.width(), 1), color);
    }
    painter.restore();
}

QColor Mix(const QColor &from, const QColor &to, qreal amount)
{
    const auto part = [amount](int a, int b) { return qRound(a + (b - a) * amount); };
    return {part(from.red(), to.red()), part(from.green(), to.green()), part(from.blue(), to.blue()),
            part(from.alpha(), to.alpha())};
}

QLinearGradient Vertical(const QRectF &box, const QColor &top, const QColor &bottom)
{
    QLinearGradient gradient(box.topLeft(), box.bottomLeft());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    return gradient;
}

} // namespace Shapes
