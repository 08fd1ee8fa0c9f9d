#include "Panel.h"

#include "Shapes.h"
#include "Theme.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace Panel {

namespace {

constexpr qreal statusRowHeight = 44;
constexpr qreal statusLabelTop = 13;
constexpr qreal statusLabelHeight = 22;

struct StatusItem
{
    QString caption;
    qreal left;     // of the caption, which follows the icon
    qreal lineLeft; // of the line in front of the item, 0 for none
};

} // namespace

Picture Make(const QString &name, const std::function<void(QPainter &)> &draw)
{
    return {name, QSize(width, height), [draw](QPainter &painter) {
                painter.translate(0, -tabStripHeight);
                draw(painter);
            }};
}

void DrawBody(QPainter &painter, const Theme &theme)
{
    const qreal radius = theme.Number(u"panel.radius"_s);
    // Its top left corner is square: the first tab stands on it.
    const auto shape = [radius](const QRectF &box) {
        QPainterPath path(box.topLeft());
        path.lineTo(box.right() - radius, box.top());
        path.quadTo(box.topRight(), QPointF(box.right(), box.top() + radius));
        path.lineTo(box.right(), box.bottom() - radius);
        path.quadTo(box.bottomRight(), QPointF(box.right() - radius, box.bottom()));
        path.lineTo(box.left() + radius, box.bottom());
        path.quadTo(box.bottomLeft(), QPointF(box.left(), box.bottom() - radius));
        path.closeSubpath();
        return path;
    };
    const QRectF box(0, tabStripHeight - 1, width, height + 1);
    painter.fillPath(shape(box), theme.Color(u"panel.border"_s));
    painter.fillPath(shape(box.adjusted(1, 1, -1, -1)), theme.Color(u"panel.innerBorder"_s));
    painter.fillPath(shape(box.adjusted(2, 1, -2, -2)), theme.Color(u"panel.face"_s));
}

void DrawWell(QPainter &painter, const Theme &theme, qreal top, qreal bottom, const QString &face)
{
    Shapes::FillSunken(painter, QRectF(QPointF(wellLeft, top), QPointF(wellRight, bottom)),
                       theme.Number(u"panel.radius"_s), theme.Color(face), theme.Color(u"panel.wellBorder"_s),
                       theme.Color(u"panel.wellShadow"_s));
}

void DrawTextBoxFrame(QPainter &painter, const Theme &theme, const QRectF &box)
{
    Shapes::FillBordered(painter, box, 3, theme.Color(u"panel.textBox"_s), theme.Color(u"panel.border"_s));
}

void DrawTitlePlate(QPainter &painter, const Theme &theme)
{
    Shapes::FillSunken(painter, QRectF(QPointF(wellLeft, 54), QPointF(568, 88)),
                       theme.Number(u"panel.radius"_s), theme.Color(u"panel.plate"_s),
                       theme.Color(u"panel.wellBorder"_s), theme.Color(u"panel.wellShadow"_s));
}

void DrawStatusRow(QPainter &painter, const Theme &theme, qreal panelTop)
{
    const qreal middle = panelTop + statusLabelTop + statusLabelHeight / 2;
    const QRectF box(wellLeft, middle - statusRowHeight / 2, wellRight - wellLeft, statusRowHeight);
    Shapes::FillBordered(painter, box, theme.Number(u"panel.radius"_s), theme.Color(u"panel.plate"_s),
                         theme.Color(u"panel.innerBorder"_s));
    const QList<StatusItem> items{
        {theme.Text(u"status.time"_s), 92, 0},
        {theme.Text(u"status.speed"_s), 298, 249},
        {theme.Text(u"status.progress"_s), 504, 455},
        {theme.Text(u"status.accuracy"_s), 774, 727},
    };
    for (const StatusItem &item : items) {
        Shapes::DrawLabel(
            painter, QRectF(item.left, box.top(), 80, box.height()), item.caption,
            {theme.Number(u"status.textSize"_s), false, theme.Color(u"status.caption"_s), Qt::AlignLeft});
        if (item.lineLeft > 0)
            painter.fillRect(QRectF(item.lineLeft, box.top() + 10, 1, box.height() - 20),
                             theme.Color(u"panel.innerBorder"_s));
    }
}

void DrawHintMark(QPainter &painter, const Theme &theme)
{
    Shapes::FillRounded(painter, QRectF(wellLeft, 662, 3, 38), 1.5, theme.Color(u"palette.accent"_s));
}

} // namespace Panel
