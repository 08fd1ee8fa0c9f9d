#include "Panel.h"
#include "Pictures.h"
#include "Shapes.h"
#include "Theme.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

void DrawJuniorPanel(QPainter &painter, const Theme &theme)
{
    Panel::DrawBody(painter, theme);
    Panel::DrawTitlePlate(painter, theme);
    Panel::DrawWell(painter, theme, 100, 180, u"panel.keyCapWell"_s);
    Panel::DrawStatusRow(painter, theme, 192);
    Panel::DrawWell(painter, theme, 254, 541, u"keyboard.ground"_s);
    Panel::DrawHintMark(painter, theme);
}

void DrawSeniorPanel(QPainter &painter, const Theme &theme)
{
    Panel::DrawBody(painter, theme);
    Panel::DrawTitlePlate(painter, theme);
    Panel::DrawWell(painter, theme, 106, 264, u"panel.keyCapWell"_s);
    for (const qreal top : {130.0, 190.0})
        Panel::DrawTextBoxFrame(painter, theme, QRectF(QPointF(62, top - 2), QPointF(932, top + 52)));
    Panel::DrawStatusRow(painter, theme, 285);
    Panel::DrawWell(painter, theme, 350, 638, u"keyboard.ground"_s);
    Panel::DrawHintMark(painter, theme);
}

void DrawWordPanel(QPainter &painter, const Theme &theme)
{
    Panel::DrawBody(painter, theme);
    Panel::DrawTitlePlate(painter, theme);
    Panel::DrawWell(painter, theme, 104, 290, u"panel.keyCapWell"_s);
    for (const qreal top : {120.0, 170.0})
        Panel::DrawTextBoxFrame(painter, theme, QRectF(QPointF(66, top - 2), QPointF(928, top + 42)));
    // Where the explanations stand when they are wanted; a quiet plate when they are not.
    Shapes::FillBordered(painter, QRectF(QPointF(64, 248), QPointF(763, 282)), 3,
                         theme.Color(u"panel.plate"_s), theme.Color(u"panel.wellBorder"_s));
    Panel::DrawStatusRow(painter, theme, 299);
    Panel::DrawWell(painter, theme, 352, 638, u"keyboard.ground"_s);
    Panel::DrawHintMark(painter, theme);
}

} // namespace

void AddDrillPanels(PictureList &list, const Theme &theme)
{
    list.append(
        Panel::Make(u"EN_KEY_BACK_B"_s, [&theme](QPainter &painter) { DrawJuniorPanel(painter, theme); }));
    list.append(
        Panel::Make(u"EN_KEY_BACK_E"_s, [&theme](QPainter &painter) { DrawSeniorPanel(painter, theme); }));
    list.append(
        Panel::Make(u"EN_WORD_BACK"_s, [&theme](QPainter &painter) { DrawWordPanel(painter, theme); }));
}
