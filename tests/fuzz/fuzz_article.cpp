#include "core/drills/ArticleSession.h"
#include "fuzz/FuzzTarget.h"
#include "support/TestInstall.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// Characters beyond ASCII are two wide.
int ArticleWidth(const QString &text)
{
    const auto wide = std::ranges::count_if(text, [](QChar c) { return c >= QChar(128); });
    return static_cast<int>(text.size() + wide);
}

void CheckLines(const Article &article, const LineMeasure &measure)
{
    int index = 0;
    int before = 0;
    for (std::u32string line; !(line = article.BuildTextLine(index, measure)).empty(); before = index) {
        Require(index > before && index <= article.TokenCount(), "a line takes a word");
        Require(line.ends_with(U"\r\n") && line.size() > 2, "a line has characters and an end");
        const QString text = QString::fromStdU32String(line.substr(0, line.size() - 2));
        Require(text.isValidUtf16() && text.toStdU32String().size() + 2 == line.size(),
                "no character is cut");
        Require(measure.widthOf(text) <= measure.boxWidth, "a line is no wider than its box");
        Require(text.size() <= Article::MostCharacters, "a line is no longer than any box");
        for (const QChar c : text)
            Require(c == u' ' || !(c.isSpace() || c.category() == QChar::Other_Control),
                    "every character has a key");
    }
    Require(index == article.TokenCount(), "lines take every word");
}

void TypeArticle(const Article &article, const LineMeasure &measure, DisplayForm form)
{
    ArticleSession session;
    session.SetArticle(article);
    session.GoOnIn(form, measure);
    const qsizetype most = 3 * article.Text().size() + 3; // with a line end for each word
    for (qsizetype key = 0; key <= most; ++key) {
        const ArticleSession::Outcome outcome = session.TypeCharacter(session.Expected());
        Require(outcome.kind == ArticleSession::Outcome::Kind::Right, "the expected character is right");
        if (outcome.then == ArticleSession::Outcome::Then::ArticleDone) {
            Require(session.GetTextIndexAt() <= article.TokenCount(), "a word is reached");
            return;
        }
        if (key % 7 == 0)
            session.TypeCharacter(8);
    }
    Require(false, "an article has an end");
}

void ReadArticle(const QByteArray &bytes)
{
    static const TestInstall install;
    const QString path = install.Write(u"article.txt"_s, bytes);
    const LineMeasure narrow{ArticleWidth, 20};
    const LineMeasure wide{ArticleWidth, 700};
    for (const Article::Cut cut : {Article::Cut::Words, Article::Cut::Characters}) {
        Article article;
        Require(article.InitArticleData(path, cut) == (article.TokenCount() > 0), "an article has a word");
        Require(article.TokenCount() <= bytes.size() + 1, "a token is made of the text");
        for (int index = 0; index < article.TokenCount(); ++index)
            Require(!article.Token(index).isEmpty(), "a token has characters");
        for (const auto &[measure, form] :
             {std::pair(narrow, DisplayForm::PageAndInput), {wide, DisplayForm::InPlace}}) {
            CheckLines(article, measure);
            if (article.TokenCount() > 0)
                TypeArticle(article, measure, form);
        }
    }
}

const FuzzTarget articleTarget("article", ReadArticle);

} // namespace
