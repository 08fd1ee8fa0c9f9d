#pragma once

#include "core/drills/PromptLine.h"

/// What a drill that is typed line by line knows: the line, the place in it and the key counts. A wrong
/// character is accepted like a right one and can be taken back; the letter case counts.
class LineSession
{
public:
    enum class Step {
        OnLine,     ///< the line goes on
        NextLine,   ///< the line was full and the next was begun
        LessonDone, ///< the last line is full; what is typed behind it finishes the lesson again
    };
    struct Outcome
    {
        bool right;
        Step step;
    };

    explicit LineSession(PromptLine::Fits fits);

    /// Takes the items of a lesson that was just loaded. Without any, line and place stay where they were.
    void SetItems(int count, PromptLine::ItemText item);

    /// Begins a line at an item; one beyond the end means the first. Without items the index is only kept.
    void BeginAt(int index);
    /// The item from which the speed counts, where that is not the one that the session began at.
    void CountFrom(int index) { m_startItem = index; }
    /// Begins at the first item, with the counts at zero.
    void Restart();

    Outcome Type(char32_t typed);
    /// Takes the last character of the line back; false when there is none. No count is reduced.
    bool TakeBack();

    bool HasItems() const { return m_itemCount > 0; }
    int ItemCount() const { return m_itemCount; }
    const PromptLine &Line() const { return m_line; }
    /// How many characters of the line were typed; more than it has only behind a lesson's end.
    int Position() const { return m_position; }
    /// The character to type, 0 before any line was begun; behind a lesson's end still the last one.
    char32_t Expected() const { return m_expected; }
    /// The character that was expected when the last one was typed.
    char32_t Judged() const { return m_judged; }
    /// The item being typed; ItemCount() once the lesson is done.
    int CurrentItem() const { return m_line.ItemAt(m_position); }
    /// Items done since the session began. Negative when they count from an item that lies behind.
    int ItemsDone() const { return CurrentItem() - m_startItem; }
    int TotalKeys() const { return m_totalKeys; }
    int CorrectKeys() const { return m_correctKeys; }

private:
    void BeginLine(int first);

    const PromptLine::Fits m_fits;
    PromptLine::ItemText m_item;
    int m_itemCount = 0;
    PromptLine m_line;
    int m_position = 0;
    char32_t m_expected = 0;
    char32_t m_judged = 0;
    int m_startItem = 0;
    int m_totalKeys = 0;
    int m_correctKeys = 0;
};
