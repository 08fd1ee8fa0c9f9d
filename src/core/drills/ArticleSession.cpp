#include "core/drills/ArticleSession.h"

#include <algorithm>
#include <utility>

namespace {

constexpr char32_t backspace = 8;

bool IsControl(char32_t character)
{
    return character < U' ' && character != U'\r';
}

} // namespace

DisplayForm DisplayFormOf(int number)
{
    return number == 4 || number == 5 ? static_cast<DisplayForm>(number) : DisplayForm::LinePairs;
}

int ArticleSession::LinesPerPage(DisplayForm form)
{
    switch (form) {
    case DisplayForm::LinePairs:
        break;
    case DisplayForm::PageAndInput:
        return 4;
    case DisplayForm::InPlace:
        return 10;
    }
    return 5;
}

int ArticleSession::CountSpaces(std::u32string_view text)
{
    return static_cast<int>(std::count(text.begin(), text.end(), U' '));
}

void ArticleSession::Restart()
{
    ShowArticlePage(0);
}

void ArticleSession::GoOnIn(DisplayForm form, LineMeasure measure)
{
    const int index = GetTextIndexAt();
    m_form = form;
    m_measure = std::move(measure);
    ShowArticlePage(index);
}

void ArticleSession::ShowArticlePage(int index)
{
    m_pageStart = index;
    m_line = 0;
    m_column = 0;
    m_page.clear();
    for (int i = 0; i < LinesPerPage(m_form); ++i) {
        std::u32string text = m_article.BuildTextLine(index, m_measure);
        if (text.empty())
            break;
        std::vector<Mark> marks(text.size(), Mark::Untyped);
        m_page.push_back({std::move(text), std::move(marks), {}});
    }
    m_nextToken = index;
}

char32_t ArticleSession::Expected() const
{
    const auto line = static_cast<std::size_t>(m_line);
    return line < m_page.size() ? m_page[line].text[static_cast<std::size_t>(m_column)] : 0;
}

int ArticleSession::GetTextIndexAt() const
{
    int index = m_pageStart;
    for (std::size_t line = 0; line < m_page.size() && line <= static_cast<std::size_t>(m_line); ++line) {
        const std::u32string_view text = m_page[line].text;
        const bool current = line == static_cast<std::size_t>(m_line);
        index += CountSpaces(current ? text.substr(0, static_cast<std::size_t>(m_column)) : text);
    }
    return index;
}

ArticleSession::Outcome ArticleSession::TypeCharacter(char32_t typed)
{
    if (!HasArticle())
        return {};
    if (typed == backspace)
        return TakeBack();
    const char32_t expected = Expected();
    if (expected == U'\r' && typed == U' ')
        typed = U'\r';
    if ((expected == U'\r') != (typed == U'\r'))
        return {};
    // A field to type in takes no Escape; a text that is typed over is told every key.
    if (m_form != DisplayForm::InPlace && IsControl(typed))
        return {};
    const bool right = typed == expected;
    ++m_totalKeys;
    m_correctKeys += right ? 1 : 0;
    if (expected != 0) {
        Line &line = m_page[static_cast<std::size_t>(m_line)];
        line.marks[static_cast<std::size_t>(m_column)] = right ? Mark::Right : Mark::Wrong;
        if (m_form != DisplayForm::InPlace && expected != U'\r')
            line.typed += typed;
    }
    return {right ? Outcome::Kind::Right : Outcome::Kind::Wrong, Advance()};
}

ArticleSession::Outcome::Then ArticleSession::Advance()
{
    if (const char32_t passed = Expected(); passed != 0) {
        m_column += passed == U'\r' ? 2 : 1;
        if (m_column < static_cast<int>(m_page[static_cast<std::size_t>(m_line)].text.size()))
            return Outcome::Then::SamePage;
        m_column = 0;
        ++m_line;
    }
    if (m_line < static_cast<int>(m_page.size()))
        return Outcome::Then::SamePage;
    const bool articleEnds = m_nextToken >= TokenCount();
    if (articleEnds && !IsPageEnd())
        return Outcome::Then::ArticleDone;
    ShowArticlePage(m_nextToken);
    return articleEnds ? Outcome::Then::ArticleDone : Outcome::Then::NewPage;
}

/// Whether the boxes are used up, so that the next page is shown even if it is empty. A text that is typed
/// over stays in sight at its end; of the line pairs some may be left.
bool ArticleSession::IsPageEnd() const
{
    switch (m_form) {
    case DisplayForm::LinePairs:
        return m_line >= LinesPerPage(m_form);
    case DisplayForm::PageAndInput:
        return true;
    case DisplayForm::InPlace:
        break;
    }
    return false;
}

ArticleSession::Outcome ArticleSession::TakeBack()
{
    const bool stepped = m_form == DisplayForm::InPlace ? StepBackInPlace() : StepBackInInput();
    if (!stepped)
        return {};
    m_page[static_cast<std::size_t>(m_line)].marks[static_cast<std::size_t>(m_column)] = Mark::Untyped;
    return {Outcome::Kind::TakenBack, Outcome::Then::SamePage};
}

bool ArticleSession::StepBackInPlace()
{
    if (m_column > 0) {
        // A line has a character before its end: from the line feed the step goes over the carriage return.
        m_column -= Expected() == U'\n' ? 2 : 1;
        return true;
    }
    if (m_line == 0)
        return false;
    --m_line;
    m_column = static_cast<int>(m_page[static_cast<std::size_t>(m_line)].text.size()) - 1;
    return true;
}

bool ArticleSession::StepBackInInput()
{
    if (m_column > 0) {
        --m_column;
        m_page[static_cast<std::size_t>(m_line)].typed.pop_back();
        return true;
    }
    if (m_line == 0 || m_form == DisplayForm::LinePairs)
        return false;
    // What is taken back is the line end that was typed.
    --m_line;
    m_column = static_cast<int>(m_page[static_cast<std::size_t>(m_line)].text.size()) - 2;
    return true;
}
