#include "core/drills/LineSession.h"

#include <utility>

LineSession::LineSession(PromptLine::Fits fits)
    : m_fits(std::move(fits))
{
}

void LineSession::SetItems(int count, PromptLine::ItemText item)
{
    m_itemCount = count;
    m_item = std::move(item);
}

void LineSession::BeginAt(int index)
{
    const bool inside = !HasItems() || index < m_itemCount;
    m_startItem = inside ? index : 0;
    BeginLine(m_startItem);
}

void LineSession::Restart()
{
    m_totalKeys = 0;
    m_correctKeys = 0;
    BeginAt(0);
}

void LineSession::BeginLine(int first)
{
    m_position = 0;
    m_line = BuildPromptLine(m_item, first, m_itemCount, m_fits);
    m_expected = m_line.text.empty() ? 0 : m_line.text.front();
}

LineSession::Outcome LineSession::Type(char32_t typed)
{
    m_judged = m_expected;
    const bool right = typed == m_expected;
    ++m_totalKeys;
    m_correctKeys += right ? 1 : 0;
    ++m_position;
    if (m_position < m_line.Length()) {
        m_expected = m_line.text[static_cast<std::size_t>(m_position)];
        return {right, Step::OnLine};
    }
    if (m_line.Next() >= m_itemCount)
        return {right, Step::LessonDone};
    BeginLine(m_line.Next());
    return {right, Step::NextLine};
}

bool LineSession::TakeBack()
{
    if (m_position == 0)
        return false;
    --m_position;
    if (m_position < m_line.Length())
        m_expected = m_line.text[static_cast<std::size_t>(m_position)];
    return true;
}
