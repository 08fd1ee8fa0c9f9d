#include "Illustration.h"
#include "Pictures.h"
#include "Shapes.h"
#include "Theme.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int menuWidth = 916;
constexpr int menuHeight = 600;

void DrawHeading(QPainter &painter, const Theme &theme)
{
    Shapes::DrawLabel(painter, QRectF(0, 40, 640, 64), theme.Text(u"mainMenu.name"_s),
                      {60, true, theme.Color(u"mainMenu.nameColor"_s), Qt::AlignLeft});
    Shapes::DrawLabel(painter, QRectF(2, 112, 640, 24), theme.Text(u"mainMenu.motto"_s),
                      {18, false, theme.Color(u"mainMenu.mottoColor"_s), Qt::AlignLeft});
}

void DrawButtonPlate(QPainter &painter, const Theme &theme)
{
    Shapes::FillBordered(painter, QRectF(664, 204, 252, 376), theme.Number(u"mainMenu.radius"_s),
                         theme.Color(u"mainMenu.plate"_s), theme.Color(u"mainMenu.plateBorder"_s));
}

} // namespace

// The user's name stands at (0, 160), 528 x 30, and the buttons at (680, 220), 220 wide, down to 564.
void AddMainMenu(PictureList &list, const Theme &theme)
{
    list.append({u"MAIN_BACK"_s, QSize(menuWidth, menuHeight), [&theme](QPainter &painter) {
                     DrawHeading(painter, theme);
                     DrawButtonPlate(painter, theme);
                     DrawIllustration(painter, theme, QRectF(0, 204, 640, 376));
                 }});
}
