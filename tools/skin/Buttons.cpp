#include "Icons.h"
#include "Pictures.h"
#include "Shapes.h"
#include "Theme.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The colours of one style of button in one state: "button.<style>.<state>.face", ".border", ".text".
struct ButtonLook
{
    QColor face;
    QColor border;
    QColor text;

    ButtonLook(const Theme &theme, const QString &style, Frame frame)
    {
        const QString key = u"button.%1.%2."_s.arg(style, NameOf(frame));
        face = theme.Color(key + u"face"_s);
        border = theme.Color(key + u"border"_s);
        text = theme.Color(key + u"text"_s);
    }
};

void DrawButtonBody(QPainter &painter, const QSize &size, const ButtonLook &look, Frame frame,
                    const Theme &theme)
{
    const QRectF box(QPointF(0, 0), QSizeF(size));
    const qreal radius = theme.Number(u"button.radius"_s);
    Shapes::FillBordered(painter, box, radius, look.face, look.border);
    if (frame ==
        Frame::Pressed) { // the light comes from above, so a pressed button has its shadow at the top
        painter.save();
        QPainterPath inside;
        inside.addRoundedRect(box.adjusted(1, 1, -1, -1), radius - 1, radius - 1);
        painter.setClipPath(inside, Qt::IntersectClip);
        painter.fillRect(QRectF(0, 1, size.width(), 2), theme.Color(u"button.pressedShadow"_s));
        painter.restore();
    }
    if (frame == Frame::Focused) { // two colours, so that one of them is seen on any face
        painter.save();
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(theme.Color(u"palette.accent"_s), 2));
        painter.drawRoundedRect(box.adjusted(1, 1, -1, -1), radius - 1, radius - 1);
        painter.setPen(QPen(theme.Color(u"palette.slateDeep"_s), 1));
        painter.drawRoundedRect(box.adjusted(2.5, 2.5, -2.5, -2.5), radius - 2, radius - 2);
        painter.restore();
    }
}

Picture MakeTextButton(const Theme &theme, const QJsonObject &entry)
{
    const QString label = entry.value(u"label").toString();
    const QString style = entry.value(u"style").toString();
    const int frames = entry.value(u"frames").toInt(usualFrames);
    const qreal textSize = entry.value(u"textSize").toDouble(theme.Number(u"button.textSize"_s));
    const QSize size(entry.value(u"width").toInt(), entry.value(u"height").toInt());
    return MakeStrip(
        entry.value(u"name").toString(), size, frames, [=, &theme](QPainter &painter, Frame frame) {
            const ButtonLook look(theme, style, frame);
            DrawButtonBody(painter, size, look, frame, theme);
            const QRectF box(0, frame == Frame::Pressed ? 1 : 0, size.width(), size.height());
            Shapes::DrawLabel(painter, box, label, {textSize, true, look.text, Qt::AlignHCenter, true});
        });
}

Picture MakeMenuButton(const Theme &theme, const QString &name, const QString &label, Icon icon)
{
    const QSize size(theme.Integer(u"menu.buttonWidth"_s), theme.Integer(u"menu.buttonHeight"_s));
    return MakeStrip(name, size, usualFrames, [=, &theme](QPainter &painter, Frame frame) {
        const ButtonLook look(theme, u"menu"_s, frame);
        DrawButtonBody(painter, size, look, frame, theme);
        const qreal sink = frame == Frame::Pressed ? 1 : 0;
        const QColor iconColor = theme.Color(u"button.menu.%1.icon"_s.arg(NameOf(frame)));
        if (frame == Frame::Hovered)
            Shapes::FillRounded(painter, QRectF(6, 10, 3, size.height() - 20), 1.5,
                                theme.Color(u"palette.accent"_s));
        constexpr qreal iconSize = 24;
        DrawIcon(painter, icon, QPointF(18, (size.height() - iconSize) / 2 + sink), iconSize, iconColor);
        Shapes::DrawLabel(painter, QRectF(56, sink, size.width() - 60, size.height()), label,
                          {theme.Number(u"menu.textSize"_s), true, look.text, Qt::AlignLeft, true});
    });
}

Picture MakeIconButton(const Theme &theme, const QString &name, const QSize &size, const QString &style,
                       Icon icon, qreal iconSize)
{
    return MakeStrip(name, size, usualFrames, [=, &theme](QPainter &painter, Frame frame) {
        const ButtonLook look(theme, style, frame);
        Shapes::FillBordered(painter, QRectF(QPointF(0, 0), QSizeF(size)), theme.Number(u"button.radius"_s),
                             look.face, look.border);
        const qreal sink = frame == Frame::Pressed ? 1 : 0;
        DrawIcon(painter, icon, QPointF((size.width() - iconSize) / 2, (size.height() - iconSize) / 2 + sink),
                 iconSize, look.text);
    });
}

} // namespace

void AddTextButtons(PictureList &list, const Theme &theme)
{
    const QJsonArray entries = theme.List(u"textButtons"_s);
    for (const auto &entry : entries)
        list.append(MakeTextButton(theme, entry.toObject()));
}

void AddMenuButtons(PictureList &list, const Theme &theme)
{
    const QList<std::pair<QString, Icon>> buttons{
        {u"BTN_YINGWEN"_s, Icon::Keyboard},    {u"BTN_CESHI"_s, Icon::Stopwatch},
        {u"BTN_JIAOCHENG"_s, Icon::Book},      {u"BTN_YOUXI_MISSILE"_s, Icon::Rocket},
        {u"BTN_YOUXI_RABBIT"_s, Icon::Rabbit}, {u"BTN_GERENJILU"_s, Icon::Chart},
        {u"BTN_TUICHUDENGLU"_s, Icon::Person},
    };
    for (const auto &[name, icon] : buttons)
        list.append(MakeMenuButton(theme, name, theme.Text(u"menu.labels."_s + name), icon));
}

void AddWindowButtons(PictureList &list, const Theme &theme)
{
    const QSize size(theme.Integer(u"windowButton.width"_s), theme.Integer(u"windowButton.height"_s));
    constexpr qreal iconSize = 18;
    list.append(MakeIconButton(theme, u"BTN_CLOSE"_s, size, u"windowClose"_s, Icon::Close, iconSize));
    list.append(MakeIconButton(theme, u"BTN_MIN"_s, size, u"window"_s, Icon::Minimize, iconSize));
    list.append(MakeIconButton(theme, u"BTN_HELP"_s, size, u"window"_s, Icon::Help, iconSize));
    const QSize dialogSize(theme.Integer(u"dialog.closeWidth"_s), theme.Integer(u"dialog.closeHeight"_s));
    list.append(MakeIconButton(theme, u"DLG_BTN_CLOSE"_s, dialogSize, u"windowClose"_s, Icon::Close, 16));
}
