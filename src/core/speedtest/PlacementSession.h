#pragma once

#include "core/drills/ArticleSession.h"

/// What the placement test knows while its text is typed: to what an article's session knows it adds the
/// words, as the placement test counts them, and its own rule for Enter.
class PlacementSession
{
public:
    using Outcome = ArticleSession::Outcome;

    /// Begins at the text's start, with the counts at zero.
    void Begin(Article article, LineMeasure measure);
    /// As ArticleSession, but Enter is a space where a space is to be typed.
    Outcome TypeCharacter(char32_t typed);

    const ArticleSession &Page() const { return m_session; }
    int TotalWords() const { return m_totalWords; }
    /// Those of the lines that are complete, and of the current line before the place to type at.
    int WordsTyped() const;
    int JudgedCharacters() const { return m_session.TotalKeys(); }
    int RightCharacters() const { return m_session.CorrectKeys(); }

private:
    int WordsOfLine(int line) const;

    ArticleSession m_session;
    int m_totalWords = 0;
    int m_wordsBefore = 0; ///< of the lines above the current one, on all pages
};
