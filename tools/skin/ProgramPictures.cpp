#include "Pictures.h"
#include "Shapes.h"
#include "Theme.h"

#include <QPainter>
#include <QPainterPath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int messageSide = 40;

void DrawDisc(QPainter &painter, const Theme &theme, const QString &kind)
{
    const QPointF center(messageSide / 2.0, messageSide / 2.0);
    painter.setBrush(theme.Color(u"message.%1Edge"_s.arg(kind)));
    painter.drawEllipse(center, 19, 19);
    painter.setBrush(theme.Color(u"message.%1"_s.arg(kind)));
    painter.drawEllipse(center, 17.5, 17.5);
}

void DrawInformation(QPainter &painter, const Theme &theme)
{
    DrawDisc(painter, theme, u"information"_s);
    painter.setBrush(theme.Color(u"message.sign"_s));
    painter.drawEllipse(QPointF(20, 12), 2.6, 2.6);
    painter.drawRoundedRect(QRectF(17.8, 17, 4.4, 13), 2.2, 2.2);
}

// The hand-sized bar of a closed road: the user may not go on this way.
void DrawStop(QPainter &painter, const Theme &theme)
{
    DrawDisc(painter, theme, u"stop"_s);
    painter.setBrush(theme.Color(u"message.sign"_s));
    painter.drawRoundedRect(QRectF(9.5, 16.8, 21, 6.4), 2, 2);
}

void DrawError(QPainter &painter, const Theme &theme)
{
    QPainterPath triangle;
    triangle.moveTo(20, 5);
    triangle.lineTo(36.5, 33.5);
    triangle.lineTo(3.5, 33.5);
    triangle.closeSubpath();
    painter.setPen(QPen(theme.Color(u"message.errorEdge"_s), 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(triangle);
    painter.setPen(QPen(theme.Color(u"message.error"_s), 2.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(theme.Color(u"message.error"_s));
    painter.drawPath(triangle);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.Color(u"message.errorSign"_s));
    painter.drawRoundedRect(QRectF(18, 13.5, 4, 11.5), 2, 2);
    painter.drawEllipse(QPointF(20, 29), 2.3, 2.3);
}

void DrawQuestion(QPainter &painter, const Theme &theme)
{
    DrawDisc(painter, theme, u"question"_s);
    QPainterPath hook;
    hook.moveTo(14.4, 15.4);
    hook.cubicTo(14.6, 11.6, 17, 9.8, 20.1, 9.8);
    hook.cubicTo(23.6, 9.8, 25.9, 11.8, 25.9, 14.8);
    hook.cubicTo(25.9, 18.6, 20.1, 19, 20.1, 24);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(theme.Color(u"message.sign"_s), 3.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(hook);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.Color(u"message.sign"_s));
    painter.drawEllipse(QPointF(20.1, 29.8), 2.5, 2.5);
}

// A key cap with the product's initial: the accent says "this one next".
void DrawApplicationIcon(QPainter &painter, const Theme &theme)
{
    constexpr qreal side = 64;
    Shapes::FillRounded(painter, QRectF(3, 4, side - 6, side - 6), 13,
                        theme.Color(u"applicationIcon.side"_s));
    Shapes::FillRounded(painter, QRectF(3, 4, side - 6, side - 13), 13,
                        theme.Color(u"applicationIcon.edge"_s));
    const QRectF face(6, 6, side - 12, side - 18);
    Shapes::FillRounded(painter, face, 10,
                        Shapes::Vertical(face, theme.Color(u"applicationIcon.faceTop"_s),
                                         theme.Color(u"applicationIcon.faceBottom"_s)));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(theme.Color(u"applicationIcon.sign"_s), 5.4, Qt::SolidLine, Qt::RoundCap));
    painter.drawEllipse(QPointF(31.4, 28.4), 12.4, 12.8);
    painter.drawLine(QPointF(35.4, 33.4), QPointF(44, 42.2));
}

} // namespace

PictureList MakeProgramPictures(const Theme &theme)
{
    const QSize message(messageSide, messageSide);
    return {
        {u"DLG_MESSAGE_INFORMATION"_s, message,
         [&theme](QPainter &painter) { DrawInformation(painter, theme); }},
        {u"DLG_MESSAGE_STOP"_s, message, [&theme](QPainter &painter) { DrawStop(painter, theme); }},
        {u"DLG_MESSAGE_ERROR"_s, message, [&theme](QPainter &painter) { DrawError(painter, theme); }},
        {u"DLG_MESSAGE_QUESTION"_s, message, [&theme](QPainter &painter) { DrawQuestion(painter, theme); }},
        {u"APP_ICON"_s, QSize(64, 64), [&theme](QPainter &painter) { DrawApplicationIcon(painter, theme); }},
    };
}
