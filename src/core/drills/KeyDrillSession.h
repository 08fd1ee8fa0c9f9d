#pragma once

#include <QStringList>
#include <string>

/// What a drill for single keys knows while a lesson is typed: the place in the lesson and the key counts. A
/// key is accepted only when it is the right one; the characters of a group are whole code points.
class KeyDrillSession
{
public:
    enum class Judgement {
        Wrong,      ///< the same character stays to be typed
        NextKey,    ///< right; the group goes on
        NextGroup,  ///< right; the next group was begun
        LessonDone, ///< right; it was the lesson's last
    };

    /// Takes the groups of a lesson that was just loaded. Without any, the place stays where it was: what is
    /// left of the old group can be typed, its end is the end of the lesson.
    void SetGroups(const QStringList &groups);

    /// Begins at a group; one beyond the end means the first. Without groups the index is only kept.
    void BeginAt(int itemIndex);
    /// Begins at the first group, with the counts at zero.
    void Restart();

    Judgement TypeCharacter(char32_t typed);

    bool HasGroups() const { return !m_groups.isEmpty(); }
    int ItemCount() const { return static_cast<int>(m_groups.size()); }
    /// At least ItemCount() once the lesson is done.
    int ItemIndex() const { return m_itemIndex; }
    int TotalKeys() const { return m_totalKeys; }
    int CorrectKeys() const { return m_correctKeys; }

    const std::u32string &CurrentGroup() const { return m_currentGroup; }
    /// The character to type, 0 before any lesson was begun.
    char32_t CurrentCharacter() const { return m_currentCharacter; }
    /// Where in the group the character to type stands. When the lesson was just done that is still its end.
    int PromptIndex() const;

private:
    void BeginGroup();

    QStringList m_groups;
    std::u32string m_currentGroup;
    char32_t m_currentCharacter = 0;
    int m_position = 0;
    int m_itemIndex = 0;
    int m_totalKeys = 0;
    int m_correctKeys = 0;
    bool m_lessonDone = false;
};

/// True for the same character, or the same letter in the other case.
bool IsSameKey(char32_t one, char32_t other);
