#include "Pictures.h"
#include "Theme.h"

#include <QPainter>
#include <random>

using namespace Qt::Literals::StringLiterals;

// A woven ground: short threads, barely lighter or darker than it, laid on a grid that closes on itself, so
// that the tiles show no seam.
void AddBackground(PictureList &list, const Theme &theme)
{
    const int side = theme.Integer(u"background.tile"_s);
    list.append({u"MAIN_BG"_s, QSize(side, side), [=, &theme](QPainter &painter) {
                     painter.fillRect(0, 0, side, side, theme.Color(u"background.ground"_s));
                     std::mt19937 random(20);
                     constexpr int thread = 4;
                     constexpr int shades = 3;
                     for (int y = 0; y < side; y += 2) {
                         for (int x = 0; x < side; x += thread) {
                             const auto shade = random() % shades;
                             if (shade == 0)
                                 continue;
                             const int shift = y / 2 % 2 * (thread / 2);
                             const QColor color = theme.Color(shade == 1 ? u"background.threadLight"_s
                                                                         : u"background.threadDark"_s);
                             painter.fillRect(x + shift, y, thread - 1, 1, color);
                             if (x + shift + thread - 1 > side)
                                 painter.fillRect(x + shift - side, y, thread - 1, 1, color);
                         }
                     }
                 }});
}
