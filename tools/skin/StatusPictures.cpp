#include "Icons.h"
#include "Pictures.h"
#include "Shapes.h"
#include "Theme.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

void AddStatusIcons(PictureList &list, const Theme &theme)
{
    const int side = theme.Integer(u"status.iconSize"_s);
    const auto add = [&list, &theme, side](const QString &name, Icon icon) {
        list.append({name, QSize(side, side), [=, &theme](QPainter &painter) {
                         DrawIcon(painter, icon, QPointF(0, 0), side, theme.Color(u"status.icon"_s));
                     }});
    };
    add(u"ICON_TIME"_s, Icon::Clock);
    add(u"ICON_SPEED"_s, Icon::Gauge);
    add(u"ICON_SCHEDULE"_s, Icon::Steps);
    add(u"ICON_VERACITY"_s, Icon::Target);
}

namespace {

Picture MakeProgressBar(const Theme &theme, const QString &name, const QString &color)
{
    const QSize size(theme.Integer(u"progress.width"_s), theme.Integer(u"progress.height"_s));
    return {name, size, [=, &theme](QPainter &painter) {
                const QRectF box(QPointF(0, 0), QSizeF(size));
                const QColor face = theme.Color(u"progress.%1"_s.arg(color));
                const qreal radius = theme.Number(u"progress.radius"_s);
                Shapes::FillBordered(painter, box, radius, face,
                                     theme.Color(u"progress.%1Border"_s.arg(color)));
            }};
}

} // namespace

void AddProgressBars(PictureList &list, const Theme &theme)
{
    list.append(MakeProgressBar(theme, u"PROGRESSBAR_BLUE"_s, u"blue"_s));
    list.append(MakeProgressBar(theme, u"PROGRESSBAR_GREEN"_s, u"green"_s));
}
