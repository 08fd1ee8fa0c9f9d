#include "Keyboard.h"

#include "KeyShapes.h"
#include "Pictures.h"
#include "Shapes.h"
#include "Theme.h"

#include <QPainter>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

QString LegendOf(const AnsiKey &key)
{
    if (key.name.endsWith(u"Shift"_s))
        return u"Shift"_s;
    if (key.name.endsWith(u"Ctrl"_s))
        return u"Ctrl"_s;
    if (key.name.endsWith(u"Alt"_s))
        return u"Alt"_s;
    return key.name;
}

/// Draws the legends of one key, in the sizes of one picture.
class LegendPainter
{
public:
    LegendPainter(QPainter &painter, const Theme &theme, AnsiKeyboard::Size size, KeyState state)
        : m_painter(painter)
        , m_theme(theme)
        , m_sizes(size == AnsiKeyboard::Size::Large ? u"keyboard.large."_s : u"keyboard.small."_s)
        , m_color(LegendColorsOf(theme, state).text)
        , m_quiet(LegendColorsOf(theme, state).quiet)
    {
    }

    void Draw(const AnsiKey &key, const QRectF &face)
    {
        if (key.name == u"Left Meta"_s || key.name == u"Right Meta"_s)
            DrawMetaSign(face);
        else if (key.name == u"Menu"_s)
            DrawMenuSign(face);
        else if (key.plain.isLetter())
            DrawLetter(key, face);
        else if (key.TypesCharacter() && !key.plain.isSpace())
            DrawPair(key, face);
        else
            DrawName(key, face);
    }

private:
    qreal Size(const QString &name) const { return m_theme.Number(m_sizes + name); }

    void DrawLetter(const AnsiKey &key, const QRectF &face)
    {
        const qreal inset = Size(u"inset"_s);
        const qreal size = Size(u"letter"_s);
        Shapes::DrawLabel(m_painter, QRectF(face.left() + inset, face.top() + inset - 1, face.width(), size),
                          QString(key.shifted), {size, true, m_color, Qt::AlignLeft});
        const qreal small = Size(u"smallLetter"_s);
        Shapes::DrawLabel(m_painter,
                          QRectF(face.left(), face.bottom() - inset - small, face.width() - inset, small),
                          QString(key.plain), {small, false, m_quiet, Qt::AlignRight});
        if (key.plain == u'f' || key.plain == u'j')
            DrawBump(m_painter, face, m_color);
    }

    // Both boxes are as high as the capitals need, so that a comma keeps its place below the line.
    void DrawPair(const AnsiKey &key, const QRectF &face)
    {
        const qreal inset = Size(u"inset"_s);
        const qreal size = Size(u"pair"_s);
        const qreal width = Size(u"pairWidth"_s);
        const qreal margin = Size(u"pairMargin"_s);
        Shapes::DrawLabel(m_painter, QRectF(face.left() + inset, face.top() + margin, width, size * 0.72),
                          QString(key.shifted), {size, true, m_color});
        Shapes::DrawLabel(
            m_painter, QRectF(face.left() + inset, face.bottom() - margin - size * 0.72, width, size * 0.72),
            QString(key.plain), {size, true, m_color});
    }

    void DrawName(const AnsiKey &key, const QRectF &face)
    {
        const qreal inset = Size(u"inset"_s);
        if (key.plain.isSpace())
            Shapes::DrawLabel(m_painter, face, key.name, {Size(u"name"_s), false, m_quiet});
        else
            Shapes::DrawLabel(
                m_painter, face.adjusted(inset, 0, -inset, 0), LegendOf(key),
                {Size(u"name"_s), false, m_color,
                 key.finger > Finger::Thumb || key.name == u"Right Alt"_s ? Qt::AlignRight : Qt::AlignLeft});
    }

    void DrawMetaSign(const QRectF &face)
    {
        QPainterPath diamond(face.center() - QPointF(0, 7));
        diamond.lineTo(face.center() + QPointF(7, 0));
        diamond.lineTo(face.center() + QPointF(0, 7));
        diamond.lineTo(face.center() - QPointF(7, 0));
        diamond.closeSubpath();
        m_painter.setPen(QPen(m_color, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        m_painter.drawPath(diamond);
        m_painter.setPen(Qt::NoPen);
    }

    void DrawMenuSign(const QRectF &face)
    {
        for (const int line : {-4, 0, 4})
            Shapes::FillRounded(
                m_painter, QRectF(qRound(face.center().x()) - 7, qRound(face.center().y()) + line - 1, 14, 2),
                1, m_color);
    }

    QPainter &m_painter;
    const Theme &m_theme;
    QString m_sizes;
    QColor m_color;
    QColor m_quiet;
};

} // namespace

QColor FingerTint(const Theme &theme, Finger finger)
{
    static const std::array<QString, 9> names{u"little"_s,    u"ring"_s,  u"middle"_s,
                                              u"leftIndex"_s, u"thumb"_s, u"rightIndex"_s,
                                              u"middle"_s,    u"ring"_s,  u"little"_s};
    return theme.Color(u"finger."_s + names.at(static_cast<size_t>(finger)));
}

LegendColors LegendColorsOf(const Theme &theme, KeyState state)
{
    switch (state) {
    case KeyState::Normal:
        break;
    case KeyState::Prompt:
        return {theme.Color(u"keyboard.promptText"_s), theme.Color(u"keyboard.promptText"_s)};
    case KeyState::Pressed:
        return {theme.Color(u"keyboard.pressedText"_s), theme.Color(u"keyboard.pressedText"_s)};
    }
    return {theme.Color(u"keyboard.text"_s), theme.Color(u"keyboard.quietText"_s)};
}

QRectF DrawKeyBody(QPainter &painter, const Theme &theme, Finger finger, const QRectF &box, KeyState state)
{
    KeyLook look{};
    look.radius = theme.Number(u"keyboard.radius"_s);
    look.lip = theme.Number(u"keyboard.lip"_s);
    switch (state) {
    case KeyState::Normal:
        look.face = FingerTint(theme, finger);
        look.edge = Shapes::Mix(look.face, theme.Color(u"keyboard.edge"_s), 0.45);
        look.border = theme.Color(u"keyboard.border"_s);
        break;
    case KeyState::Prompt:
        look.face = theme.Color(u"keyboard.prompt"_s);
        look.edge = theme.Color(u"keyboard.promptEdge"_s);
        look.border = theme.Color(u"keyboard.promptBorder"_s);
        break;
    case KeyState::Pressed:
        look.face = Shapes::Mix(FingerTint(theme, finger), theme.Color(u"keyboard.edge"_s), 0.5);
        look.border = theme.Color(u"keyboard.pressedBorder"_s);
        return DrawSunkenKey(painter, box, look, look.lip, theme.Color(u"keyboard.pressedShadow"_s));
    }
    return DrawKey(painter, box, look);
}

void DrawBump(QPainter &painter, const QRectF &face, const QColor &color)
{
    const QRectF bump(face.center().x() - 7, face.bottom() - 5, 14, 3);
    Shapes::FillRounded(painter, bump, 1.5, color);
}

void DrawKeyboard(QPainter &painter, const Theme &theme, AnsiKeyboard::Size size, KeyState state)
{
    const QRect picture(QPoint(0, 0), AnsiKeyboard::PictureSize(size));
    painter.setClipRect(picture);
    painter.fillRect(picture, theme.Color(u"keyboard.ground"_s));
    LegendPainter legends(painter, theme, size, state);
    const QList<AnsiKey> &keys = AnsiKeyboard::Keys();
    for (int index = 0; index < keys.size(); ++index) {
        const QRectF box = AnsiKeyboard::KeyRect(index, size);
        legends.Draw(keys.at(index), DrawKeyBody(painter, theme, keys.at(index).finger, box, state));
    }
}

void AddKeyboards(PictureList &list, const Theme &theme)
{
    const auto add = [&list, &theme](const QString &name, KeyState state, AnsiKeyboard::Size size) {
        list.append({name, AnsiKeyboard::PictureSize(size),
                     [=, &theme](QPainter &painter) { DrawKeyboard(painter, theme, size, state); }});
    };
    for (const auto size : {AnsiKeyboard::Size::Large, AnsiKeyboard::Size::Small}) {
        const QString suffix = size == AnsiKeyboard::Size::Small ? u"_SMALL"_s : QString();
        add(u"KEYBOARD_NORMAL"_s + suffix, KeyState::Normal, size);
        add(u"KEYBOARD_PROMPT"_s + suffix, KeyState::Prompt, size);
        add(u"KEYBOARD_PRESSED"_s + suffix, KeyState::Pressed, size);
    }
}
