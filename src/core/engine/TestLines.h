#pragma once

#include <QString>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// A text cut into lines that fit a width. Every paragraph begins on a line of its own, and empty paragraphs
/// have none; a line is cut only between units, which are words of ASCII letters and single other characters.
/// A unit that is too wide for any line is not cut. The ideographic space becomes an ordinary one.
class TestLines
{
public:
    TestLines() = default;
    /// Lines narrower than `maxCols` (see GetTextWidth).
    TestLines(const QString &text, int maxCols);

    int Count() const { return static_cast<int>(m_starts.size()) - 1; }
    int CharacterCount() const { return static_cast<int>(m_text.size()); }
    /// The characters of a line, from 1; none for a number that no line has.
    std::u32string_view Line(int number) const;

private:
    /// Cuts the characters from `from` up to `end`, and moves them to where the lines end so far.
    void AddParagraph(std::size_t from, std::size_t end, int maxCols);

    std::u32string m_text; ///< all lines, back to back
    std::size_t m_used = 0;
    std::vector<std::uint32_t> m_starts{0}; ///< of each line, and the end
};
