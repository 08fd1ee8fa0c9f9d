#include "core/drills/KeyDrillSession.h"

bool IsSameKey(char32_t one, char32_t other)
{
    return QChar::toCaseFolded(one) == QChar::toCaseFolded(other);
}

void KeyDrillSession::SetGroups(const QStringList &groups)
{
    m_groups = groups;
}

void KeyDrillSession::BeginAt(int itemIndex)
{
    if (!HasGroups()) {
        m_itemIndex = itemIndex;
        return;
    }
    m_itemIndex = itemIndex >= 0 && itemIndex < ItemCount() ? itemIndex : 0;
    BeginGroup();
}

void KeyDrillSession::Restart()
{
    m_totalKeys = 0;
    m_correctKeys = 0;
    BeginAt(0);
}

void KeyDrillSession::BeginGroup()
{
    m_lessonDone = false;
    m_position = 0;
    m_currentGroup = m_groups.at(m_itemIndex).toStdU32String();
    m_currentCharacter = m_currentGroup.front();
}

KeyDrillSession::Judgement KeyDrillSession::TypeCharacter(char32_t typed)
{
    ++m_totalKeys;
    if (m_currentGroup.empty() || !IsSameKey(typed, m_currentCharacter))
        return Judgement::Wrong;

    ++m_correctKeys;
    ++m_position;
    m_lessonDone = false;
    if (static_cast<std::size_t>(m_position) < m_currentGroup.size()) {
        m_currentCharacter = m_currentGroup[static_cast<std::size_t>(m_position)];
        return Judgement::NextKey;
    }
    ++m_itemIndex;
    if (m_itemIndex < ItemCount()) {
        BeginGroup();
        return Judgement::NextGroup;
    }
    m_position = 0;
    m_lessonDone = true;
    return Judgement::LessonDone;
}

int KeyDrillSession::PromptIndex() const
{
    return m_lessonDone ? static_cast<int>(m_currentGroup.size()) - 1 : m_position;
}
