#include "Icons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>

namespace {

constexpr qreal ground = 24;
constexpr qreal lineWidth = 1.8;

class IconPainter
{
public:
    IconPainter(QPainter &painter, const QColor &color)
        : m_painter(painter)
        , m_color(color)
    {
        painter.setPen(QPen(color, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
    }

    void Keyboard()
    {
        m_painter.drawRoundedRect(QRectF(2, 5.5, 20, 13), 2.5, 2.5);
        for (const qreal x : {6.0, 10.0, 14.0, 18.0})
            Dot({x, 9.6}, 1.15);
        Line({8, 14.4}, {16, 14.4});
    }

    void Stopwatch()
    {
        m_painter.drawEllipse(QPointF(12, 13.6), 7.6, 7.6);
        Line({9.6, 2.8}, {14.4, 2.8});
        Line({12, 3}, {12, 6});
        Line({18.3, 6.4}, {19.6, 7.7});
        Line({12, 13.6}, {15, 10});
    }

    void Book()
    {
        QPainterPath page;
        page.moveTo(12, 6.4);
        page.cubicTo(9.5, 4.6, 6, 4.4, 2.6, 5);
        page.lineTo(2.6, 18.4);
        page.cubicTo(6, 17.8, 9.5, 18.2, 12, 20);
        page.cubicTo(14.5, 18.2, 18, 17.8, 21.4, 18.4);
        page.lineTo(21.4, 5);
        page.cubicTo(18, 4.4, 14.5, 4.6, 12, 6.4);
        page.lineTo(12, 19.6);
        m_painter.drawPath(page);
    }

    void Rocket()
    {
        m_painter.save();
        m_painter.translate(12, 12);
        m_painter.rotate(45);
        QPainterPath body;
        body.moveTo(0, -11.5);
        body.cubicTo(4.6, -7.6, 4.8, -1.5, 3.4, 4.6);
        body.lineTo(-3.4, 4.6);
        body.cubicTo(-4.8, -1.5, -4.6, -7.6, 0, -11.5);
        m_painter.drawPath(body);
        m_painter.drawEllipse(QPointF(0, -3.4), 1.6, 1.6);
        QPainterPath fins;
        fins.moveTo(-4, 0);
        fins.lineTo(-7, 3.6);
        fins.lineTo(-6.4, 7.4);
        fins.lineTo(-3.4, 4.6);
        fins.moveTo(4, 0);
        fins.lineTo(7, 3.6);
        fins.lineTo(6.4, 7.4);
        fins.lineTo(3.4, 4.6);
        m_painter.drawPath(fins);
        Line({0, 7.6}, {0, 11});
        m_painter.restore();
    }

    void Rabbit()
    {
        QPainterPath ears;
        ears.moveTo(8.6, 11.4);
        ears.cubicTo(6.2, 7.4, 5.8, 3, 7.6, 2.4);
        ears.cubicTo(9.6, 1.9, 10.9, 6, 11.1, 10.3);
        ears.moveTo(15.4, 11.4);
        ears.cubicTo(17.8, 7.4, 18.2, 3, 16.4, 2.4);
        ears.cubicTo(14.4, 1.9, 13.1, 6, 12.9, 10.3);
        m_painter.drawPath(ears);
        QPainterPath head;
        head.moveTo(8.6, 11.4);
        head.cubicTo(5.4, 13, 4.8, 16.2, 6, 18.4);
        head.cubicTo(7.4, 20.9, 9.6, 21.8, 12, 21.8);
        head.cubicTo(14.4, 21.8, 16.6, 20.9, 18, 18.4);
        head.cubicTo(19.2, 16.2, 18.6, 13, 15.4, 11.4);
        m_painter.drawPath(head);
        Dot({9.4, 15.2}, 1.05);
        Dot({14.6, 15.2}, 1.05);
        Line({11.4, 18.1}, {12.6, 18.1});
    }

    void Chart()
    {
        Line({3, 20.6}, {21, 20.6});
        m_painter.drawRoundedRect(QRectF(4.6, 13, 3.4, 7.6), 0.8, 0.8);
        m_painter.drawRoundedRect(QRectF(10.3, 8.8, 3.4, 11.8), 0.8, 0.8);
        m_painter.drawRoundedRect(QRectF(16, 4, 3.4, 16.6), 0.8, 0.8);
    }

    void Person()
    {
        m_painter.drawEllipse(QPointF(9.6, 8), 3.9, 3.9);
        QPainterPath shoulders;
        shoulders.moveTo(2.6, 20);
        shoulders.cubicTo(2.8, 16, 5.6, 14.4, 9.6, 14.4);
        shoulders.cubicTo(11.6, 14.4, 13.4, 14.8, 14.6, 15.8);
        m_painter.drawPath(shoulders);
        QPainterPath arrows;
        arrows.moveTo(15, 19.6);
        arrows.lineTo(21.4, 19.6);
        arrows.moveTo(19, 17.2);
        arrows.lineTo(21.4, 19.6);
        arrows.lineTo(19, 22);
        m_painter.drawPath(arrows);
    }

    void Clock()
    {
        m_painter.drawEllipse(QPointF(12, 12), 9, 9);
        Line({12, 6.6}, {12, 12});
        Line({12, 12}, {15.8, 14.2});
    }

    void Gauge()
    {
        QPainterPath dial;
        dial.moveTo(5.2, 19);
        dial.arcTo(QRectF(3, 4.6, 18, 18), 222, -264);
        m_painter.drawPath(dial);
        Line({12, 13.6}, {16, 9.2});
        Dot({12, 13.6}, 1.6);
    }

    void Steps()
    {
        QPainterPath stairs;
        stairs.moveTo(3, 20.4);
        stairs.lineTo(8.4, 20.4);
        stairs.lineTo(8.4, 15.2);
        stairs.lineTo(14, 15.2);
        stairs.lineTo(14, 10);
        stairs.lineTo(19.6, 10);
        stairs.lineTo(19.6, 3.8);
        m_painter.drawPath(stairs);
        QPainterPath head;
        head.moveTo(16.8, 6.4);
        head.lineTo(19.6, 3.6);
        head.lineTo(22.4, 6.4);
        m_painter.drawPath(head);
    }

    void Target()
    {
        m_painter.drawEllipse(QPointF(12, 12), 9, 9);
        QPainterPath tick;
        tick.moveTo(7.8, 12.4);
        tick.lineTo(10.9, 15.4);
        tick.lineTo(16.4, 9.2);
        m_painter.drawPath(tick);
    }

    void Close()
    {
        Line({6.4, 6.4}, {17.6, 17.6});
        Line({17.6, 6.4}, {6.4, 17.6});
    }

    void Minimize() { Line({5.6, 17}, {18.4, 17}); }

    void Help()
    {
        QPainterPath hook;
        hook.moveTo(7.8, 8.4);
        hook.cubicTo(8, 5.6, 9.8, 4.4, 12.1, 4.4);
        hook.cubicTo(14.6, 4.4, 16.4, 5.8, 16.4, 8);
        hook.cubicTo(16.4, 10.8, 12.1, 11, 12.1, 14.6);
        m_painter.drawPath(hook);
        Dot({12.1, 19}, 1.35);
    }

private:
    void Line(const QPointF &from, const QPointF &to) { m_painter.drawLine(from, to); }

    void Dot(const QPointF &center, qreal radius)
    {
        QPainterPath dot;
        dot.addEllipse(center, radius, radius);
        m_painter.fillPath(dot, m_color);
    }

    QPainter &m_painter;
    QColor m_color;
};

} // namespace

void DrawIcon(QPainter &painter, Icon icon, const QPointF &topLeft, qreal size, const QColor &color)
{
    painter.save();
    painter.translate(topLeft);
    painter.scale(size / ground, size / ground);
    IconPainter lines(painter, color);
    switch (icon) {
    case Icon::Keyboard:
        lines.Keyboard();
        break;
    case Icon::Stopwatch:
        lines.Stopwatch();
        break;
    case Icon::Book:
        lines.Book();
        break;
    case Icon::Rocket:
        lines.Rocket();
        break;
    case Icon::Rabbit:
        lines.Rabbit();
        break;
    case Icon::Chart:
        lines.Chart();
        break;
    case Icon::Person:
        lines.Person();
        break;
    case Icon::Clock:
        lines.Clock();
        break;
    case Icon::Gauge:
        lines.Gauge();
        break;
    case Icon::Steps:
        lines.Steps();
        break;
    case Icon::Target:
        lines.Target();
        break;
    case Icon::Close:
        lines.Close();
        break;
    case Icon::Minimize:
        lines.Minimize();
        break;
    case Icon::Help:
        lines.Help();
        break;
    }
    painter.restore();
}
