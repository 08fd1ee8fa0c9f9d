#include "core/engine/TestLines.h"

#include "core/engine/TextUnits.h"

#include <algorithm>

TestLines::TestLines(const QString &text, int maxCols)
    : m_text(text.toStdU32String())
{
    m_starts.clear();
    std::erase(m_text, char32_t(QChar::ByteOrderMark)); // where files were joined; no key types it
    const auto isLineEnd = [](char32_t c) { return c == U'\n' || c == U'\r'; };
    for (std::size_t from = 0; from < m_text.size();) {
        const auto found =
            std::find_if(m_text.begin() + static_cast<std::ptrdiff_t>(from), m_text.end(), isLineEnd);
        const auto end = static_cast<std::size_t>(found - m_text.begin());
        if (from < end)
            AddParagraph(from, end, maxCols);
        from = end + 1;
    }
    m_text.resize(m_used);
    m_starts.push_back(static_cast<std::uint32_t>(m_used));
}

void TestLines::AddParagraph(std::size_t from, std::size_t end, int maxCols)
{
    const auto beginLine = [this] { m_starts.push_back(static_cast<std::uint32_t>(m_used)); };
    beginLine();
    std::size_t lineWidth = 0;
    while (from < end) {
        const std::size_t unit = from++;
        std::size_t width = 1;
        if (Public_Function::IsLetter(m_text[unit])) {
            while (from < end && Public_Function::IsLetter(m_text[from]))
                ++from;
            width = from - unit;
        } else {
            m_text[unit] = Public_Function::OrdinarySpace(m_text[unit]);
            width = static_cast<std::size_t>(Public_Function::GetTextWidth(m_text[unit]));
        }
        if (static_cast<std::ptrdiff_t>(lineWidth + width) >= maxCols) {
            beginLine();
            lineWidth = 0;
        }
        lineWidth += width;
        for (std::size_t i = unit; i < from; ++i)
            m_text[m_used++] = m_text[i]; // never further than the place that is read
    }
}

std::u32string_view TestLines::Line(int number) const
{
    if (number < 1 || number > Count())
        return {};
    const auto index = static_cast<std::size_t>(number);
    return std::u32string_view(m_text).substr(m_starts[index - 1], m_starts[index] - m_starts[index - 1]);
}
