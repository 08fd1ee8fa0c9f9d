#include "Keyboard.h"
#include "Pictures.h"
#include "Shapes.h"
#include "Theme.h"
#include "core/drills/KeypadKeys.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What a digit's key does while Num Lock is off.
QString NavigationOf(QChar character)
{
    static const QHash<QChar, QString> names{
        {u'7', u"Home"_s}, {u'8', u"↑"_s}, {u'9', u"PgUp"_s}, {u'4', u"←"_s},   {u'6', u"→"_s},
        {u'1', u"End"_s},  {u'2', u"↓"_s}, {u'3', u"PgDn"_s}, {u'0', u"Ins"_s}, {u'.', u"Del"_s},
    };
    return names.value(character);
}

bool IsSign(QChar character)
{
    return u"+-*/"_s.contains(character);
}

/// The legends of one key, in the sizes and colours of the main keyboard's.
void DrawKeypadLegend(QPainter &painter, const Theme &theme, const KeypadKey &key, const QRectF &face,
                      KeypadKeys::Size size, KeyState state)
{
    const QString sizes = size == KeypadKeys::Size::Large ? u"keyboard.large."_s : u"keyboard.small."_s;
    const LegendColors colors = LegendColorsOf(theme, state);
    const qreal inset = theme.Number(sizes + u"inset"_s);
    const qreal letter = theme.Number(sizes + u"letter"_s);
    const qreal name = theme.Number(sizes + u"name"_s);
    if (key.character.isNull()) {
        const QStringList lines = key.name.split(u' ');
        const qreal pitch = name + 2;
        qreal top = face.center().y() - pitch * static_cast<qreal>(lines.size()) / 2;
        for (const QString &line : lines) {
            Shapes::DrawLabel(painter, QRectF(face.left(), top, face.width(), pitch), line,
                              {name, false, colors.text});
            top += pitch;
        }
    } else if (IsSign(key.character)) {
        Shapes::DrawLabel(painter, face, key.name, {letter + 4, true, colors.text});
    } else {
        const QRectF upper(face.left() + inset, face.top() + inset - 1, face.width(), letter);
        Shapes::DrawLabel(painter, upper, key.name, {letter, true, colors.text, Qt::AlignLeft});
        const QRectF lower(face.left() + inset, face.bottom() - inset - name + 4, face.width(), name);
        Shapes::DrawLabel(painter, lower, NavigationOf(key.character),
                          {name - 1, false, colors.quiet, Qt::AlignLeft});
    }
    if (key.character == u'5')
        DrawBump(painter, face, colors.text);
}

void DrawKeypad(QPainter &painter, const Theme &theme, KeypadKeys::Size size, KeyState state)
{
    const QRect picture(QPoint(0, 0), KeypadKeys::PictureSize(size));
    painter.setClipRect(picture);
    painter.fillRect(picture, theme.Color(u"keyboard.ground"_s));
    int index = 0;
    for (const KeypadKey &key : KeypadKeys::Keys()) {
        const QRectF box = KeypadKeys::KeyRect(index++, size);
        DrawKeypadLegend(painter, theme, key, DrawKeyBody(painter, theme, key.finger, box, state), size,
                         state);
    }
}

} // namespace

void AddKeypads(PictureList &list, const Theme &theme)
{
    for (const auto &[state, name] : {std::pair(KeyState::Normal, u"KEYPAD_NORMAL"_s),
                                      {KeyState::Prompt, u"KEYPAD_PROMPT"_s},
                                      {KeyState::Pressed, u"KEYPAD_PRESSED"_s}}) {
        for (const auto size : {KeypadKeys::Size::Large, KeypadKeys::Size::Small})
            list.append({size == KeypadKeys::Size::Small ? name + u"_SMALL"_s : name,
                         KeypadKeys::PictureSize(size), [&theme, size, state = state](QPainter &painter) {
                             DrawKeypad(painter, theme, size, state);
                         }});
    }
}
