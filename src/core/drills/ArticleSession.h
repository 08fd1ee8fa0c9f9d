#pragma once

#include "core/drills/Article.h"

/// How the text drill shows an article; the numbers are those that are stored.
enum class DisplayForm {
    LinePairs = 3,    ///< five lines, each with a line to type in below it
    PageAndInput = 4, ///< a page of four lines, with a page to type in below it
    InPlace = 5,      ///< a page of ten lines that is typed over
};

/// The form with that number, LinePairs for any other number.
DisplayForm DisplayFormOf(int number);

/// What the text drill knows while an article is typed: the page shown, the place on it, what was typed right
/// and wrong, and the counts. Lines end with CR LF; both are places in a line, which one Enter or Space
/// passes together.
class ArticleSession
{
public:
    enum class Mark : quint8 { Untyped, Right, Wrong };

    struct Line
    {
        std::u32string text;     ///< with CR LF
        std::vector<Mark> marks; ///< one for each character of `text`
        std::u32string typed;    ///< in the forms that show it; without the line end
    };

    /// What a character did.
    struct Outcome
    {
        enum class Kind { Ignored, Right, Wrong, TakenBack };
        enum class Then { SamePage, NewPage, ArticleDone };
        Kind kind = Kind::Ignored;
        Then then = Then::SamePage;
    };

    /// Takes the article, which is shown by Restart().
    void SetArticle(Article article) { m_article = std::move(article); }
    bool HasArticle() const { return m_article.TokenCount() > 0; }

    /// Begins at the first word. The key counts go on.
    void Restart();
    /// Goes on at the word reached, on a fresh page of that form and width.
    void GoOnIn(DisplayForm form, LineMeasure measure);

    /// A typed character; Backspace (8) and Enter (13) as such. When the article is done another character
    /// counts as wrong, and it is done again.
    Outcome TypeCharacter(char32_t typed);
    /// The character to type, 0 when the article is done.
    char32_t Expected() const;
    /// Whether the place to type at is a line end, which only Enter, Space and Backspace leave.
    bool AtLineEnd() const { return Expected() == U'\r'; }

    DisplayForm Form() const { return m_form; }
    const std::vector<Line> &Page() const { return m_page; }
    /// The line to type, from 0; as many as the page has lines when it is done.
    int CurrentLine() const { return m_line; }
    /// The place in that line.
    int Column() const { return m_column; }

    int TokenCount() const { return m_article.TokenCount(); }
    /// The word reached: that at the page's start, and the spaces passed since.
    int GetTextIndexAt() const;
    int TotalKeys() const { return m_totalKeys; }
    int CorrectKeys() const { return m_correctKeys; }

    static int CountSpaces(std::u32string_view text);
    static int LinesPerPage(DisplayForm form);

private:
    void ShowArticlePage(int index);
    Outcome TakeBack();
    bool StepBackInPlace();
    bool StepBackInInput();
    Outcome::Then Advance();
    bool IsPageEnd() const;

    Article m_article;
    DisplayForm m_form = DisplayForm::PageAndInput;
    LineMeasure m_measure;
    std::vector<Line> m_page;
    int m_pageStart = 0; ///< token at which the page begins
    int m_nextToken = 0; ///< first token behind the page
    int m_line = 0;
    int m_column = 0;
    int m_totalKeys = 0;
    int m_correctKeys = 0;
};
