#include "Illustration.h"
#include "Pictures.h"
#include "Shapes.h"
#include "Theme.h"
#include "ui/records/ManageLayout.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

using Draw = std::function<void(QPainter &)>;

QRectF PageBox()
{
    return {QPointF(0, 0), QSizeF(ManageLayout::page)};
}

// What all pages have: the plate, the band with the page's name, the strip of the buttons.
Picture MakePage(const Theme &theme, const QString &name, const Draw &content)
{
    return {name, ManageLayout::page, [=, &theme](QPainter &painter) {
                const QRectF box = PageBox();
                const qreal radius = theme.Number(u"panel.radius"_s);
                Shapes::FillBordered(painter, box, radius, theme.Color(u"manage.page"_s),
                                     theme.Color(u"panel.border"_s));
                QPainterPath inside;
                inside.addRoundedRect(box.adjusted(1, 1, -1, -1), radius - 1, radius - 1);
                painter.save();
                painter.setClipPath(inside);
                const qreal header = ManageLayout::headerHeight;
                painter.fillRect(QRectF(0, 0, box.width(), header), theme.Color(u"topList.header"_s));
                painter.fillRect(QRectF(0, header - 1, box.width(), 1), theme.Color(u"topList.headerLine"_s));
                painter.fillRect(QRectF(0, 1, box.width(), 3), theme.Color(u"topList.headerTop"_s));
                content(painter);
                painter.restore();
                Shapes::DrawLabel(painter, QRectF(ManageLayout::margin, 2, box.width(), header - 2),
                                  theme.Text(u"manage.titles."_s + name),
                                  {14, true, theme.Color(u"palette.ink"_s), Qt::AlignLeft});
            }};
}

void DrawButtonStrip(QPainter &painter, const Theme &theme)
{
    const qreal top = ManageLayout::buttonTop - 8;
    const QRectF strip(0, top, PageBox().width(), PageBox().height() - top);
    painter.fillRect(strip, theme.Color(u"panel.face"_s));
    painter.fillRect(QRectF(0, top, strip.width(), 1), theme.Color(u"panel.innerBorder"_s));
}

void DrawRecords(QPainter &painter, const Theme &theme)
{
    const QRectF rows = QRectF(ManageLayout::Row(0)).united(ManageLayout::Row(4));
    painter.fillRect(QRectF(0, rows.top() - 1, PageBox().width(), 1), theme.Color(u"panel.innerBorder"_s));
    for (int row = 0; row < 5; row += 2) {
        const QRect stripe = ManageLayout::Row(row);
        painter.fillRect(QRectF(0, stripe.top(), PageBox().width(), stripe.height()),
                         theme.Color(u"topList.evenRow"_s));
    }
    DrawButtonStrip(painter, theme);
}

void DrawOverview(QPainter &painter, const Theme &theme)
{
    // A line below each text, and the scene of the menu below them all.
    for (const int top : ManageLayout::overviewTops)
        painter.fillRect(QRectF(ManageLayout::overviewLeft, top + ManageLayout::overviewLine + 2,
                                PageBox().width() - 2 * ManageLayout::overviewLeft, 1),
                         theme.Color(u"manage.line"_s));
    const QRectF window(ManageLayout::margin, 182, PageBox().width() - 2 * ManageLayout::margin, 174);
    QPainterPath frame;
    frame.addRoundedRect(window, 6, 6);
    painter.setClipPath(frame, Qt::IntersectClip);
    constexpr qreal scale = 0.54;
    const QSizeF stage(window.width() / scale, 376);
    painter.translate(window.left(), window.bottom() - stage.height() * scale + 10);
    painter.scale(scale, scale);
    DrawIllustration(painter, theme, QRectF(QPointF(0, 0), stage));
}

// Stretched from the axis to the bar's height, so it is the same on every line but at its top.
Picture MakeBar(const Theme &theme)
{
    return {u"Ur_histogram"_s, ManageLayout::bar, [&theme](QPainter &painter) {
                const QRectF box(QPointF(0, 0), QSizeF(ManageLayout::bar));
                QLinearGradient face(box.topLeft(), box.topRight());
                face.setColorAt(0, theme.Color(u"manage.barLight"_s));
                face.setColorAt(0.5, theme.Color(u"manage.bar"_s));
                face.setColorAt(1, theme.Color(u"manage.barDark"_s));
                painter.fillRect(box, theme.Color(u"manage.barEdge"_s));
                painter.fillRect(box.adjusted(1, 1, -1, 0), face);
            }};
}

} // namespace

void AddManagePages(PictureList &list, const Theme &theme)
{
    list.append(
        MakePage(theme, u"UR_ZONGHE_BACK"_s, [&](QPainter &painter) { DrawOverview(painter, theme); }));
    for (const QString &name : {u"UR_MISTAKEJIANWEI_BACK"_s, u"UR_MISTAKEHANZI_BACK"_s})
        list.append(MakePage(theme, name, [&](QPainter &painter) { DrawButtonStrip(painter, theme); }));
    for (const QString &name :
         {u"UR_ENGLISH_BACK"_s, u"UR_pinyin_BACK"_s, u"UR_WuBi_BACK"_s, u"UR_Exam_BACK"_s})
        list.append(MakePage(theme, name, [&](QPainter &painter) { DrawRecords(painter, theme); }));
    list.append(MakeBar(theme));
}
