#include "Panel.h"
#include "Pictures.h"
#include "Shapes.h"
#include "Theme.h"

#include <QPainter>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A tab's left edge is upright; its right edge leans through three points, at the top, the middle and the
/// the bottom. The mouse finds the tabs by the same corners.
struct TabShape
{
    qreal left;
    qreal rightTop;
    qreal rightMiddle;
    qreal rightBottom;
};

constexpr std::array<TabShape, 4> tabShapes{{
    {0, 370, 390, 410},
    {410, 575, 590, 600},
    {600, 760, 780, 790},
    {790, 950, 965, 980},
}};

constexpr qreal stripBottom = Panel::tabStripHeight;

QPainterPath TabPath(const TabShape &tab, qreal radius, qreal inset)
{
    const qreal left = tab.left + inset;
    const qreal top = inset;
    const qreal rightTop = tab.rightTop - inset;
    const qreal rightBottom = tab.rightBottom - inset;
    // The control point that leads the curve through the middle point.
    const QPointF control(2 * (tab.rightMiddle - inset) - (rightTop + rightBottom) / 2, stripBottom / 2);
    QPainterPath path(QPointF(left, stripBottom));
    path.lineTo(left, top + radius);
    path.quadTo(QPointF(left, top), QPointF(left + radius, top));
    path.lineTo(rightTop - radius, top);
    const qreal fall = radius * 0.6;
    path.quadTo(QPointF(rightTop, top),
                QPointF(rightTop + fall * (tab.rightMiddle - tab.rightTop) / (stripBottom / 2), top + fall));
    path.quadTo(control, QPointF(rightBottom, stripBottom));
    path.closeSubpath();
    return path;
}

void DrawTab(QPainter &painter, const Theme &theme, size_t index, bool lit)
{
    const TabShape &tab = tabShapes.at(index);
    const qreal radius = theme.Number(u"tabs.radius"_s);
    const QString state = lit ? u"tabs.lit."_s : u"tabs.plain."_s;
    painter.save();
    painter.setClipRect(QRectF(0, 0, Panel::width, lit ? stripBottom : stripBottom - 1), Qt::IntersectClip);
    painter.fillPath(TabPath(tab, radius, 0), theme.Color(state + u"border"_s));
    const QPainterPath inside = TabPath(tab, radius - 1, 1);
    painter.fillPath(inside, theme.Color(state + u"face"_s));
    painter.setClipPath(inside, Qt::IntersectClip);
    painter.fillRect(QRectF(0, 1, Panel::width, lit ? 3 : 1), theme.Color(state + u"top"_s));
    painter.restore();

    const QRectF box(tab.left, 2, tab.rightMiddle - tab.left, stripBottom - 4);
    const QString label = theme.List(u"tabs.labels"_s).at(static_cast<qsizetype>(index)).toString();
    Shapes::DrawLabel(painter, box, label,
                      {theme.Number(u"tabs.textSize"_s), true, theme.Color(state + u"text"_s)});
}

Picture MakeTabStrip(const Theme &theme, const QString &name, size_t litTab)
{
    return {name, QSize(Panel::width, Panel::tabStripHeight), [&theme, litTab](QPainter &painter) {
                Panel::DrawBody(painter, theme);
                for (size_t index = 0; index < tabShapes.size(); ++index)
                    DrawTab(painter, theme, index, index == litTab);
            }};
}

} // namespace

void AddTabStrips(PictureList &list, const Theme &theme)
{
    list.append(MakeTabStrip(theme, u"EN_LABEL_KEY_B"_s, 0));
    list.append(MakeTabStrip(theme, u"EN_LABEL_KEY_E"_s, 1));
    list.append(MakeTabStrip(theme, u"EN_LABEL_WORD"_s, 2));
    list.append(MakeTabStrip(theme, u"EN_LABEL_ARTICLE"_s, 3));
}
