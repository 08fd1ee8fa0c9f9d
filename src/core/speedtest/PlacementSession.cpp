#include "core/speedtest/PlacementSession.h"

#include "core/speedtest/PlacementWords.h"

#include <utility>

void PlacementSession::Begin(Article article, LineMeasure measure)
{
    m_totalWords = Public_Function::CountWords(article.Text().toString().toStdU32String());
    m_wordsBefore = 0;
    m_session = {};
    m_session.SetArticle(std::move(article));
    m_session.GoOnIn(DisplayForm::PageAndInput, std::move(measure));
}

int PlacementSession::WordsOfLine(int line) const
{
    return Public_Function::CountWords(m_session.Page()[static_cast<std::size_t>(line)].text);
}

int PlacementSession::WordsTyped() const
{
    if (m_session.CurrentLine() >= static_cast<int>(m_session.Page().size()))
        return m_wordsBefore;
    const std::u32string_view line = m_session.Page()[static_cast<std::size_t>(m_session.CurrentLine())].text;
    return m_wordsBefore +
           Public_Function::CountWords(line.substr(0, static_cast<std::size_t>(m_session.Column())));
}

PlacementSession::Outcome PlacementSession::TypeCharacter(char32_t typed)
{
    if (typed == U'\r' && m_session.Expected() == U' ')
        typed = U' ';
    const int line = m_session.CurrentLine();
    const int words = line < static_cast<int>(m_session.Page().size()) ? WordsOfLine(line) : 0;
    const Outcome outcome = m_session.TypeCharacter(typed);
    if (outcome.kind == Outcome::Kind::TakenBack && m_session.CurrentLine() < line)
        m_wordsBefore -= WordsOfLine(m_session.CurrentLine());
    else if (outcome.then != Outcome::Then::SamePage || m_session.CurrentLine() > line)
        m_wordsBefore += words;
    return outcome;
}
