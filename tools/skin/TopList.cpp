#include "Pictures.h"
#include "Shapes.h"
#include "Theme.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

// The program prints the headers 10 below the picture's top and each row 26 below the one before.
void AddTopList(PictureList &list, const Theme &theme)
{
    constexpr int rowHeight = 26;
    constexpr int headerBottom = 32;
    const QSize size(590, 290);
    list.append({u"HIGHSCORE_BACK"_s, size, [=, &theme](QPainter &painter) {
                     const QRectF box(QPointF(0, 0), QSizeF(size));
                     const qreal radius = theme.Number(u"panel.radius"_s);
                     Shapes::FillBordered(painter, box, radius, theme.Color(u"topList.row"_s),
                                          theme.Color(u"topList.border"_s));
                     QPainterPath inside;
                     inside.addRoundedRect(box.adjusted(1, 1, -1, -1), radius - 1, radius - 1);
                     painter.setClipPath(inside);
                     for (int top = headerBottom + rowHeight; top < size.height(); top += 2 * rowHeight)
                         painter.fillRect(0, top, size.width(), rowHeight, theme.Color(u"topList.evenRow"_s));
                     painter.fillRect(0, 0, size.width(), headerBottom, theme.Color(u"topList.header"_s));
                     painter.fillRect(0, headerBottom - 1, size.width(), 1,
                                      theme.Color(u"topList.headerLine"_s));
                     painter.fillRect(0, 1, size.width(), 3, theme.Color(u"topList.headerTop"_s));
                 }});
}
