#include "Panel.h"
#include "Pictures.h"
#include "Shapes.h"
#include "Theme.h"
#include "ui/speedtest/TestLayout.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A tab's left edge is upright; its right edge leans through three points, at the top, the middle and the
/// bottom. The mouse finds the tabs by the same corners.
struct TabShape
{
    qreal left;
    qreal rightTop;
    qreal rightMiddle;
    qreal rightBottom;
};

/// One row of tabs, of which each picture lights another.
struct TabRow
{
    QString labels; // key of the theme
    QList<TabShape> shapes;
};

TabRow DrillTabs()
{
    return {u"tabs.labels"_s,
            {{0, 370, 390, 410}, {410, 575, 590, 600}, {600, 760, 780, 790}, {790, 950, 965, 980}}};
}

TabRow TestTabs()
{
    TabRow row{u"tabs.testLabels"_s, {}};
    for (const TestLayout::Tab &tab : TestLayout::tabs)
        row.shapes.append(
            {qreal(tab.left), qreal(tab.rightTop), qreal(tab.rightMiddle), qreal(tab.rightBottom)});
    return row;
}

/// One tab, which says where one is.
TabRow PlacementTab()
{
    return {u"tabs.placementLabels"_s, {DrillTabs().shapes.first()}};
}

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

void DrawTab(QPainter &painter, const Theme &theme, const TabShape &tab, const QString &label, bool lit)
{
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
    Shapes::DrawLabel(painter, box, label,
                      {theme.Number(u"tabs.textSize"_s), true, theme.Color(state + u"text"_s)});
}

Picture MakeTabStrip(const Theme &theme, const QString &name, const TabRow &row, qsizetype litTab)
{
    return {name, QSize(Panel::width, Panel::tabStripHeight), [&theme, row, litTab](QPainter &painter) {
                Panel::DrawBody(painter, theme);
                const QJsonArray labels = theme.List(row.labels);
                for (qsizetype tab = 0; tab < row.shapes.size(); ++tab)
                    DrawTab(painter, theme, row.shapes.at(tab), labels.at(tab).toString(), tab == litTab);
            }};
}

void AddTabRow(PictureList &list, const Theme &theme, const TabRow &row, const QStringList &names)
{
    for (qsizetype tab = 0; tab < names.size(); ++tab)
        list.append(MakeTabStrip(theme, names.at(tab), row, tab));
}

} // namespace

void AddTabStrips(PictureList &list, const Theme &theme)
{
    AddTabRow(list, theme, DrillTabs(),
              {u"EN_LABEL_KEY_B"_s, u"EN_LABEL_KEY_E"_s, u"EN_LABEL_WORD"_s, u"EN_LABEL_ARTICLE"_s});
    AddTabRow(list, theme, TestTabs(),
              {u"TEST_LABEL_NEIBU"_s, u"TEST_LABEL_WAIBU"_s, u"TEST_LABEL_TINGDA"_s});
    AddTabRow(list, theme, PlacementTab(), {u"BEGINTEST_LABEL"_s});
}
