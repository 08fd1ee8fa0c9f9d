#pragma once

#include "core/drills/LineSession.h"
#include "ui/drills/TypingDrill.h"

class OnScreenKeyboard;
class TypingLine;

/// Where the boxes of a line drill stand, from the origin, and how large its text is.
struct LineDrillPlaces
{
    struct InLayout
    {
        QRect prompt;
        QRect input;
        QPoint keyboard;
        std::size_t fontEntry; ///< of `FontSizeTable`
        int morePoints;        ///< than that entry
    };
    InLayout narrow;
    InLayout wide;
};

/// A drill that is typed line by line: the line to type, below it what was typed of it, each character grey
/// when it was right and red when not, and the on-screen keyboard with the next key lit. The drills derived
/// from it differ in what their lines are made of and in what they store.
class LineDrill : public TypingDrill
{
    Q_OBJECT

protected:
    LineDrill(const DrillFacts &facts, const LineDrillPlaces &places, Navigator &navigator, QWidget *owner);

    void InitLayout() override;
    void RestartLesson() override;
    DrillCounts Counts() const override;
    bool CanType() const override { return m_session.HasItems(); }
    void TypeCharacter(char32_t typed, bool accepted) override;
    bool IsChecked(char32_t typed) const override { return typed >= U' '; }
    QRect TypingArea() const override;

    /// Whether Enter counts as the space at a line's end.
    virtual bool IsEnterTheLastSpace() const { return false; }
    /// The place in the line, or the line itself, is another now.
    virtual void OnPlaceChanged() {}

    LineSession &Session() { return m_session; }
    const LineSession &Session() const { return m_session; }
    /// Shows the line that the session has begun, as untyped.
    void ShowLine();
    void TakeLine();

private:
    void Judge(char32_t typed);
    void TakeBack();
    void ShowPlace();
    void ShowPosition();
    void ShowNext();

    const LineDrillPlaces m_places;
    TypingLine *PromptRTB;
    TypingLine *InputRTB;
    OnScreenKeyboard *CXKeyBoard1;
    LineSession m_session;
};
