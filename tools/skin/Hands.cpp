#include "Hands.h"

#include "Pictures.h"
#include "Shapes.h"
#include "Theme.h"

#include <QPainter>
#include <QTransform>
#include <array>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qreal handsWidth = 525;
constexpr qreal handsHeight = 162;

/// A finger of the left hand: the line from the middle of its base to the middle of its tip, and half its
/// width at both. `stripLeft` and `stripRight` bound the columns that light it.
struct FingerShape
{
    QPointF base;
    QPointF tip;
    qreal baseHalf;
    qreal tipHalf;
    qreal stripLeft;
    qreal stripRight;
    qreal litFrom; // where on the way from base to tip the light begins

    QPointF Axis() const
    {
        const QPointF line = tip - base;
        return line / std::hypot(line.x(), line.y());
    }
    QPointF Side() const { return {-Axis().y(), Axis().x()}; } // to the right, seen towards the tip
    qreal Length() const { return std::hypot(tip.x() - base.x(), tip.y() - base.y()); }
    /// The point `along` of the way from base to tip, `across` half widths to the right of the line.
    QPointF At(qreal along, qreal across) const
    {
        const qreal half = baseHalf + (tipHalf - baseHalf) * along;
        return base + (tip - base) * along + Side() * half * across;
    }
};

constexpr size_t thumb = 4;

const std::array<FingerShape, 5> &LeftFingers()
{
    static const std::array<FingerShape, 5> fingers{{
        {{21, 117}, {14.5, 59}, 11.5, 10.2, 0, 34, -0.14},
        {{53.5, 107}, {52, 31}, 13.2, 11.4, 37, 70, -0.14},
        {{92.5, 103}, {93.5, 23}, 14, 12.2, 73, 115, -0.14},
        {{131.5, 108}, {136.5, 35}, 13.6, 11.8, 115, 160, -0.14},
        {{160, 170}, {187.5, 116}, 15.5, 12.6, 160, 205, 0.36},
    }};
    return fingers;
}

// One side of a finger from base to tip swells a little at the middle joint; the tip is a round that is a
// little longer than it is wide.
void AddFingerOutline(QPainterPath &path, const FingerShape &finger)
{
    const qreal roundness = finger.tipHalf * 1.15;
    const QPointF apex = finger.tip + finger.Axis() * roundness;
    path.cubicTo(finger.At(0.3, -1.02), finger.At(0.55, -1.1), finger.At(1, -1));
    path.cubicTo(finger.At(1, -1) + finger.Axis() * roundness * 0.6,
                 apex - finger.Side() * finger.tipHalf * 0.55, apex);
    path.cubicTo(apex + finger.Side() * finger.tipHalf * 0.55,
                 finger.At(1, 1) + finger.Axis() * roundness * 0.6, finger.At(1, 1));
    path.cubicTo(finger.At(0.55, 1.1), finger.At(0.3, 1.02), finger.At(0, 1));
}

QPainterPath FingerPath(const FingerShape &finger)
{
    QPainterPath path(finger.At(0, -1));
    AddFingerOutline(path, finger);
    return path;
}

QPainterPath HandOutline()
{
    const auto &fingers = LeftFingers();
    QPainterPath path(QPointF(34, handsHeight + 20));
    path.cubicTo(QPointF(28, 152), QPointF(12, 146), fingers.at(0).At(0, -1));
    for (size_t index = 0; index < thumb; ++index) {
        AddFingerOutline(path, fingers.at(index));
        if (index + 1 < thumb) { // the web between two fingers
            const QPointF from = fingers.at(index).At(0, 1);
            const QPointF to = fingers.at(index + 1).At(0, -1);
            const qreal depth = 7;
            path.cubicTo(from - fingers.at(index).Axis() * depth, to - fingers.at(index + 1).Axis() * depth,
                         to);
        }
    }
    const FingerShape &thumbShape = fingers.at(thumb);
    // The wide web between index finger and thumb.
    path.cubicTo(QPointF(145.5, 120), QPointF(147, 133), QPointF(151.5, 140.5));
    path.cubicTo(QPointF(154.5, 145.5), QPointF(159.5, 145), thumbShape.At(0.58, -1.07));
    const qreal roundness = thumbShape.tipHalf * 1.1;
    const QPointF apex = thumbShape.tip + thumbShape.Axis() * roundness;
    path.cubicTo(thumbShape.At(0.75, -1.12), thumbShape.At(0.88, -1.06), thumbShape.At(1, -1));
    path.cubicTo(thumbShape.At(1, -1) + thumbShape.Axis() * roundness * 0.6,
                 apex - thumbShape.Side() * thumbShape.tipHalf * 0.55, apex);
    path.cubicTo(apex + thumbShape.Side() * thumbShape.tipHalf * 0.55,
                 thumbShape.At(1, 1) + thumbShape.Axis() * roundness * 0.6, thumbShape.At(1, 1));
    path.cubicTo(thumbShape.At(0.75, 1.14), thumbShape.At(0.45, 1.02), thumbShape.At(0.1, 1.25));
    path.lineTo(QPointF(160, handsHeight + 20));
    path.closeSubpath();
    return path;
}

/// Draws one hand. Shapes are mirrored for the right hand, the light is not: it falls from above left on
/// both.
class HandPainter
{
public:
    HandPainter(QPainter &painter, const Theme &theme, bool right)
        : m_painter(painter)
        , m_theme(theme)
        , m_place(right ? QTransform(-1, 0, 0, 1, handsWidth, 0) : QTransform())
        , m_outline(m_place.map(HandOutline()))
    {
    }

    void DrawPlain()
    {
        const QColor line = m_theme.Color(u"hands.line"_s);
        m_painter.fillPath(m_outline,
                           Fading(m_theme.Color(u"hands.skin"_s), m_theme.Color(u"hands.skinShade"_s)));
        for (const FingerShape &finger : LeftFingers()) {
            ShadeFinger(finger, m_theme.Color(u"hands.shade"_s));
            DrawJoints(finger, m_theme.Color(u"hands.joint"_s));
            DrawNail(finger, m_theme.Color(u"hands.nail"_s), m_theme.Color(u"hands.nailLine"_s));
        }
        DrawKnuckles();
        StrokeOutline(line);
    }

    void LightFinger(const FingerShape &finger)
    {
        m_painter.save();
        m_painter.setClipRect(
            m_place.mapRect(QRectF(finger.stripLeft, 0, finger.stripRight - finger.stripLeft, handsHeight)),
            Qt::IntersectClip);
        const QColor accent = m_theme.Color(u"hands.lit"_s);
        m_painter.save();
        m_painter.setClipPath(m_outline, Qt::IntersectClip);
        m_painter.fillPath(LightShape(finger), AlongFinger(finger, accent));
        ShadeFinger(finger, m_theme.Color(u"hands.litShade"_s));
        DrawJoints(finger, m_theme.Color(u"hands.litJoint"_s));
        DrawNail(finger, m_theme.Color(u"hands.litNail"_s), m_theme.Color(u"hands.litNailLine"_s));
        m_painter.restore();
        m_painter.setPen(QPen(AlongFinger(finger, m_theme.Color(u"hands.litLine"_s)),
                              m_theme.Number(u"hands.lineWidth"_s), Qt::SolidLine, Qt::FlatCap,
                              Qt::RoundJoin));
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawPath(m_outline);
        m_painter.setPen(Qt::NoPen);
        m_painter.restore();
    }

private:
    /// From the hand's colours to those of the panel, so that the wrist ends in no edge.
    QBrush Fading(const QColor &top, const QColor &bottom) const
    {
        QLinearGradient gradient(0, 0, 0, handsHeight);
        gradient.setColorAt(0, top);
        gradient.setColorAt(0.8, bottom);
        gradient.setColorAt(1, m_theme.Color(u"panel.face"_s));
        return gradient;
    }

    /// Full from the tip down, then fading into the back of the hand.
    QBrush AlongFinger(const FingerShape &finger, const QColor &color) const
    {
        QColor none = color;
        none.setAlpha(0);
        QLinearGradient gradient(m_place.map(finger.At(1, 0)), m_place.map(finger.At(finger.litFrom, 0)));
        gradient.setColorAt(0, color);
        gradient.setColorAt(0.72, color);
        gradient.setColorAt(1, none);
        return gradient;
    }

    /// The finger, rounded off towards its knuckle.
    QPainterPath LightShape(const FingerShape &finger) const
    {
        QPainterPath path = FingerPath(finger);
        if (finger.litFrom > 0) // the light ends before the base, so the thumb's outline alone bounds it
            return m_outline;
        path.cubicTo(finger.At(-0.13, 0.9), finger.At(-0.13, -0.9), finger.At(0, -1));
        path.closeSubpath();
        return m_place.map(path);
    }

    // A finger is round: darker towards the side that is away from the light, down to where it joins the
    // hand.
    void ShadeFinger(const FingerShape &finger, const QColor &shade)
    {
        const qreal away = m_place.m11() < 0 ? -1 : 1;
        constexpr int bands = 12;
        const qreal end = std::max(0.02, finger.litFrom);
        m_painter.save();
        m_painter.setClipPath(m_outline, Qt::IntersectClip);
        m_painter.setClipPath(LightShape(finger), Qt::IntersectClip);
        m_painter.setBrush(Qt::NoBrush);
        for (int band = 0; band < bands; ++band) {
            const qreal across = away * (0.15 + 0.95 * (band + 0.5) / bands);
            QColor color = shade;
            color.setAlphaF(shade.alphaF() * static_cast<float>(band + 1) / bands);
            QColor none = color;
            none.setAlpha(0);
            QLinearGradient gradient(m_place.map(finger.At(1, 0)), m_place.map(finger.At(end, 0)));
            gradient.setColorAt(0, color);
            gradient.setColorAt(0.55, color);
            gradient.setColorAt(1, none);
            m_painter.setPen(QPen(gradient, finger.baseHalf * 0.95 / bands, Qt::SolidLine, Qt::FlatCap));
            m_painter.drawLine(m_place.map(finger.At(1.35, across)), m_place.map(finger.At(end, across)));
        }
        m_painter.setPen(Qt::NoPen);
        m_painter.restore();
    }

    void DrawJoints(const FingerShape &finger, const QColor &color)
    {
        m_painter.setBrush(Qt::NoBrush);
        m_painter.setPen(QPen(color, 1.1, Qt::SolidLine, Qt::RoundCap));
        const bool isThumb = finger.litFrom > 0;
        const QList<qreal> joints = isThumb ? QList<qreal>{0.62} : QList<qreal>{0.42, 0.47};
        for (const qreal joint : joints) {
            QPainterPath fold(finger.At(joint, -0.42));
            fold.quadTo(finger.At(joint + 0.03, 0), finger.At(joint, 0.42));
            m_painter.drawPath(m_place.map(fold));
        }
        if (!isThumb) {
            QPainterPath fold(finger.At(0.74, -0.3));
            fold.quadTo(finger.At(0.765, 0), finger.At(0.74, 0.3));
            m_painter.drawPath(m_place.map(fold));
        }
        m_painter.setPen(Qt::NoPen);
    }

    void DrawNail(const FingerShape &finger, const QColor &color, const QColor &line)
    {
        const qreal half = finger.tipHalf * 0.54;
        const QPointF middle = finger.tip + finger.Axis() * finger.tipHalf * 0.22;
        QPainterPath nail;
        nail.addRoundedRect(QRectF(-half, -half * 1.25, 2 * half, half * 2.5), half * 0.95, half);
        QTransform place = m_place;
        place.translate(middle.x(), middle.y());
        place.rotate(std::atan2(finger.Axis().y(), finger.Axis().x()) * 180 / M_PI + 90);
        const QPainterPath placed = place.map(nail);
        m_painter.setPen(QPen(line, 1));
        m_painter.setBrush(color);
        m_painter.drawPath(placed);
        m_painter.setPen(Qt::NoPen);
    }

    void DrawKnuckles()
    {
        m_painter.setBrush(Qt::NoBrush);
        m_painter.setPen(QPen(m_theme.Color(u"hands.joint"_s), 1.2, Qt::SolidLine, Qt::RoundCap));
        for (size_t index = 0; index < thumb; ++index) {
            const FingerShape &finger = LeftFingers().at(index);
            QPainterPath knuckle(finger.At(-0.24, -0.5));
            knuckle.quadTo(finger.At(-0.14, 0), finger.At(-0.24, 0.5));
            m_painter.drawPath(m_place.map(knuckle));
        }
        m_painter.setPen(Qt::NoPen);
    }

    void StrokeOutline(const QColor &color)
    {
        m_painter.setBrush(Qt::NoBrush);
        QLinearGradient gradient(0, 0, 0, handsHeight);
        gradient.setColorAt(0, color);
        gradient.setColorAt(0.82, color);
        gradient.setColorAt(1, m_theme.Color(u"panel.face"_s));
        m_painter.setPen(
            QPen(gradient, m_theme.Number(u"hands.lineWidth"_s), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        m_painter.drawPath(m_outline);
        m_painter.setPen(Qt::NoPen);
    }

    QPainter &m_painter;
    const Theme &m_theme;
    QTransform m_place;
    QPainterPath m_outline;
};

} // namespace

void DrawHands(QPainter &painter, const Theme &theme, bool lit)
{
    for (const bool right : {false, true}) {
        HandPainter hand(painter, theme, right);
        hand.DrawPlain();
        if (!lit)
            continue;
        for (const FingerShape &finger : LeftFingers())
            hand.LightFinger(finger);
    }
}

void AddHands(PictureList &list, const Theme &theme)
{
    const QSize size(static_cast<int>(handsWidth), static_cast<int>(handsHeight));
    list.append({u"HAND_CLEAR"_s, size, [&theme](QPainter &painter) { DrawHands(painter, theme, false); }});
    list.append({u"HAND_ON"_s, size, [&theme](QPainter &painter) { DrawHands(painter, theme, true); }});
}
