#include "Panel.h"
#include "Pictures.h"
#include "Theme.h"
#include "ui/drills/ArticleLayout.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

/// From a box's inside to the outer edge of its frame.
constexpr int boxFrame = 2;

void DrawBoxes(QPainter &painter, const Theme &theme, DisplayForm form)
{
    const bool pairs = form == DisplayForm::LinePairs;
    for (int index = 0; index < ArticleLayout::BoxCount(form); ++index) {
        const QRect box = ArticleLayout::Box(form, index, true);
        if (pairs && ArticleLayout::IsInputBox(form, index))
            continue;
        // A line and the typing below it share one frame.
        const QRect inside = pairs ? box.united(ArticleLayout::Box(form, index + 1, true)) : box;
        Panel::DrawTextBoxFrame(painter, theme,
                                QRectF(inside).adjusted(-boxFrame, -boxFrame, boxFrame, boxFrame));
    }
}

Picture MakeArticlePanel(const Theme &theme, const QString &name, DisplayForm form)
{
    return Panel::Make(name, [&theme, form](QPainter &painter) {
        const int last = ArticleLayout::BoxCount(form) - 1;
        const int top = ArticleLayout::Box(form, 0, true).top();
        const int bottom = ArticleLayout::Box(form, last, true).bottom() + 1;
        // Ten boxes leave little room above the buttons.
        const int marginAbove = boxFrame + 8;
        const int marginBelow = boxFrame + (form == DisplayForm::LinePairs ? 4 : 8);
        Panel::DrawBody(painter, theme);
        Panel::DrawTitlePlate(painter, theme);
        Panel::DrawStatusRow(painter, theme, ArticleLayout::widePanelTop);
        Panel::DrawWell(painter, theme, top - marginAbove, bottom + marginBelow, u"panel.keyCapWell"_s);
        DrawBoxes(painter, theme, form);
        Panel::DrawHintMark(painter, theme);
    });
}

} // namespace

void AddArticlePanels(PictureList &list, const Theme &theme)
{
    list.append(MakeArticlePanel(theme, u"EN_ARTICLE_PAIRS_BACK"_s, DisplayForm::LinePairs));
    list.append(MakeArticlePanel(theme, u"EN_ARTICLE_PAGES_BACK"_s, DisplayForm::PageAndInput));
    list.append(MakeArticlePanel(theme, u"EN_ARTICLE_OVER_BACK"_s, DisplayForm::InPlace));
    list.append(MakeArticlePanel(theme, u"BEGINTEST_BACK"_s, DisplayForm::PageAndInput));
}
