#include "Icons.h"
#include "Pictures.h"
#include "Shapes.h"
#include "Theme.h"
#include "ui/records/ManageLayout.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

// The tab of the page that is shown stays pressed: that frame is the lit one.
Picture MakeTab(const Theme &theme, const QString &name, Icon icon)
{
    const QSize size = ManageLayout::tab;
    return MakeStrip(name, size, usualFrames, [=, &theme](QPainter &painter, Frame frame) {
        const QString key = u"manage.tab.%1."_s.arg(NameOf(frame));
        const QRectF box(QPointF(0, 0), QSizeF(size));
        Shapes::FillBordered(painter, box, theme.Number(u"button.radius"_s), theme.Color(key + u"face"_s),
                             theme.Color(key + u"border"_s));
        if (frame == Frame::Pressed)
            Shapes::FillRounded(painter, QRectF(5, 9, 3, box.height() - 18), 1.5,
                                theme.Color(u"palette.accent"_s));
        constexpr qreal iconSize = 18;
        DrawIcon(painter, icon, QPointF(14, (box.height() - iconSize) / 2), iconSize,
                 theme.Color(key + u"icon"_s));
        Shapes::DrawLabel(painter, QRectF(40, 0, box.width() - 44, box.height()),
                          theme.Text(u"manage.tab.labels."_s + name),
                          {13, false, theme.Color(key + u"text"_s), Qt::AlignLeft});
    });
}

} // namespace

void AddManageTabs(PictureList &list, const Theme &theme)
{
    const QList<std::pair<QString, Icon>> tabs{
        {u"BTN_UR_ZONGHE"_s, Icon::Chart},        {u"BTN_UR_MISTAKEJIANWEI"_s, Icon::Keyboard},
        {u"BTN_UR_MISTAKEHANZI"_s, Icon::Target}, {u"BTN_UR_ENGLISH"_s, Icon::Book},
        {u"BTN_UR_PINYIN"_s, Icon::Steps},        {u"BTN_UR_WUBI"_s, Icon::Gauge},
        {u"BTN_UR_EXAM"_s, Icon::Stopwatch},
    };
    for (const auto &[name, icon] : tabs)
        list.append(MakeTab(theme, name, icon));
}
