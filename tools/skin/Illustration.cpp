#include "Illustration.h"

#include "KeyShapes.h"
#include "Keyboard.h"
#include "Shapes.h"
#include "Theme.h"

#include <QPainter>
#include <QTransform>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

/// How high a line of the landscape lies, in pixels from the stage's top left corner.
struct Rise
{
    qreal start;
    qreal height;
    qreal power;

    qreal At(qreal part) const { return start - height * std::pow(part, power); }
};

constexpr Rise curve{200, 146, 1.55};
constexpr qreal deskTop = 222;

/// A ridge of hills: waves of a height and a length around a middle.
struct Ridge
{
    qreal middle;
    qreal height;
    qreal waves;
    qreal shift;

    qreal At(qreal part) const { return middle - height * std::sin(part * waves * M_PI + shift); }
};

constexpr Ridge farRidge{176, 26, 2.3, 0.4};
constexpr Ridge nearRidge{206, 18, 1.7, 2.6};

class ScenePainter
{
public:
    ScenePainter(QPainter &painter, const Theme &theme, const QSizeF &size)
        : m_painter(painter)
        , m_theme(theme)
        , m_size(size)
    {
    }

    void Draw()
    {
        const QRectF stage(QPointF(0, 0), m_size);
        const qreal radius = m_theme.Number(u"mainMenu.radius"_s);
        Shapes::FillRounded(m_painter, stage, radius, m_theme.Color(u"mainMenu.stageBorder"_s));
        const QRectF inside = stage.adjusted(1, 1, -1, -1);
        QPainterPath shape;
        shape.addRoundedRect(inside, radius - 1, radius - 1);
        m_painter.fillPath(shape, Shapes::Vertical(inside, m_theme.Color(u"mainMenu.skyTop"_s),
                                                   m_theme.Color(u"mainMenu.skyBottom"_s)));
        m_painter.save();
        m_painter.setClipPath(shape, Qt::IntersectClip);
        DrawSun();
        m_painter.fillPath(Below(farRidge), m_theme.Color(u"mainMenu.farHill"_s));
        m_painter.fillPath(Below(nearRidge), m_theme.Color(u"mainMenu.nearHill"_s));
        DrawCurve();
        DrawDesk();
        m_painter.restore();
        DrawFloatingCaps();
        DrawKeyboardInPerspective();
    }

private:
    void DrawSun()
    {
        const QPointF middle(m_size.width() * 0.66, 104);
        for (const qreal radius : {150.0, 112.0, 78.0}) {
            m_painter.setBrush(m_theme.Color(u"mainMenu.sunHalo"_s));
            m_painter.drawEllipse(middle, radius, radius);
        }
        m_painter.setBrush(m_theme.Color(u"mainMenu.sun"_s));
        m_painter.drawEllipse(middle, 50, 50);
    }

    template <typename Course>
    QPainterPath Line(const Course &course) const
    {
        constexpr int steps = 96;
        QPainterPath path(QPointF(0, course.At(0)));
        for (int step = 1; step <= steps; ++step) {
            const qreal part = static_cast<qreal>(step) / steps;
            path.lineTo(part * m_size.width(), course.At(part));
        }
        return path;
    }

    template <typename Course>
    QPainterPath Below(const Course &course) const
    {
        QPainterPath path = Line(course);
        path.lineTo(m_size.width(), deskTop);
        path.lineTo(0, deskTop);
        path.closeSubpath();
        return path;
    }

    void DrawDesk()
    {
        const QRectF desk(0, deskTop, m_size.width(), m_size.height() - deskTop);
        m_painter.fillRect(desk, Shapes::Vertical(desk, m_theme.Color(u"mainMenu.deskFar"_s),
                                                  m_theme.Color(u"mainMenu.deskNear"_s)));
        m_painter.fillRect(QRectF(0, deskTop, m_size.width(), 1), m_theme.Color(u"mainMenu.deskEdge"_s));
    }

    void DrawCurve()
    {
        const QRectF extent(0, curve.At(1), m_size.width(), deskTop - curve.At(1));
        m_painter.fillPath(Below(curve), Shapes::Vertical(extent, m_theme.Color(u"palette.accent"_s, 0.42),
                                                          m_theme.Color(u"palette.accent"_s, 0.04)));
        m_painter.setBrush(Qt::NoBrush);
        m_painter.setPen(
            QPen(m_theme.Color(u"palette.accent"_s), 3, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
        m_painter.drawPath(Line(curve));
        m_painter.setPen(Qt::NoPen);
    }

    void DrawFloatingCaps()
    {
        const QString word = m_theme.Text(u"mainMenu.name"_s).toUpper();
        const qreal count = static_cast<qreal>(word.size());
        for (qsizetype index = 0; index < word.size(); ++index) {
            const qreal part = (static_cast<qreal>(index) + 0.72) / (count + 0.35);
            const qreal slope = (curve.At(part + 0.01) - curve.At(part - 0.01)) / (0.02 * m_size.width());
            const bool last = index == word.size() - 1;
            m_painter.save();
            m_painter.translate(part * m_size.width(), curve.At(part));
            m_painter.rotate(std::atan(slope) * 180 / M_PI);
            DrawCap(word.at(index), 40 + 14 * part, last);
            m_painter.restore();
        }
    }

    void DrawCap(QChar letter, qreal side, bool lit)
    {
        const QRectF box(-side / 2, -side / 2, side, side);
        for (const qreal spread : {5.0, 3.0, 1.0})
            Shapes::FillRounded(m_painter, box.adjusted(-spread, 3 - spread, spread, 4 + spread), 8 + spread,
                                m_theme.Color(u"mainMenu.shadow"_s));
        const QString key = lit ? u"keyCap.on."_s : u"keyCap.normal."_s;
        const auto stroke = AnsiKeyboard::StrokeFor(letter);
        const QColor face = lit || !stroke ? m_theme.Color(key + u"face"_s)
                                           : FingerTint(m_theme, AnsiKeyboard::Keys().at(stroke->key).finger);
        const QRectF top = DrawKey(
            m_painter, box, {face, m_theme.Color(key + u"edge"_s), m_theme.Color(key + u"border"_s), 4, 7});
        Shapes::DrawLabel(
            m_painter, top, QString(letter),
            {side * 0.5, true, m_theme.Color(lit ? u"keyboard.promptText"_s : u"keyboard.text"_s)});
    }

    void DrawKeyboardInPerspective()
    {
        const QSizeF flat = AnsiKeyboard::PictureSize(AnsiKeyboard::Size::Large);
        const qreal top = m_size.height() - 140;
        const qreal bottom = m_size.height() - 26;
        const QPolygonF from(
            QList<QPointF>{{0, 0}, {flat.width(), 0}, {flat.width(), flat.height()}, {0, flat.height()}});
        const QPolygonF to(QList<QPointF>{
            {100, top}, {m_size.width() - 100, top}, {m_size.width() - 36, bottom}, {36, bottom}});
        QTransform tilt;
        if (!QTransform::quadToQuad(from, to, tilt))
            return;
        QPainterPath body;
        body.addRoundedRect(QRectF(QPointF(0, 0), flat).adjusted(-6, -8, 6, 8), 20, 20);
        const QPainterPath tilted = tilt.map(body);
        for (const int drop : {17, 14, 12})
            m_painter.fillPath(tilted.translated(0, drop), m_theme.Color(u"mainMenu.shadow"_s));
        constexpr int thickness = 9;
        for (int drop = thickness; drop > 1; --drop)
            m_painter.fillPath(tilted.translated(0, drop), m_theme.Color(u"mainMenu.keyboardFront"_s));
        m_painter.fillPath(tilted.translated(0, 1), m_theme.Color(u"mainMenu.keyboardRim"_s));
        m_painter.fillPath(tilted, m_theme.Color(u"keyboard.ground"_s));
        m_painter.save();
        m_painter.setTransform(tilt, true);
        DrawKeyboard(m_painter, m_theme, AnsiKeyboard::Size::Large, KeyState::Normal);
        m_painter.restore();
    }

    QPainter &m_painter;
    const Theme &m_theme;
    QSizeF m_size;
};

} // namespace

void DrawIllustration(QPainter &painter, const Theme &theme, const QRectF &stage)
{
    painter.save();
    painter.translate(stage.topLeft());
    ScenePainter(painter, theme, stage.size()).Draw();
    painter.restore();
}
