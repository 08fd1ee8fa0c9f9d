#include "Pictures.h"
#include "Theme.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

// A twill: short threads, barely lighter or darker than the ground, each row set off by one. The tile holds
// whole repeats, so that no seam shows.
void AddBackground(PictureList &list, const Theme &theme)
{
    constexpr int repeat = 8;
    const int side = theme.Integer(u"background.tile"_s) / repeat * repeat;
    list.append({u"MAIN_BG"_s, QSize(side, side), [=, &theme](QPainter &painter) {
                     painter.fillRect(0, 0, side, side, theme.Color(u"background.ground"_s));
                     for (int y = 0; y < side; ++y) {
                         for (int x = y % repeat - repeat; x < side; x += repeat) {
                             painter.fillRect(x, y, 2, 1, theme.Color(u"background.threadLight"_s));
                             painter.fillRect(x + repeat / 2, y, 2, 1,
                                              theme.Color(u"background.threadDark"_s));
                         }
                     }
                 }});
}
