#pragma once

#include "core/drills/ArticleSession.h"

#include <QFont>
#include <QRect>
#include <vector>

struct DrillLayout;
class ArticleBox;
class QWidget;
class TypingLine;

/// The boxes that show the page of an article session, in the layout of a display form. A line end that is to
/// be typed shows as a return sign, which goes again when it was passed.
class ArticlePage
{
public:
    explicit ArticlePage(QWidget *window)
        : m_window(window)
    {
    }

    /// Makes the boxes anew, empty.
    void Build(DisplayForm form, const DrillLayout &layout);
    /// The font that the boxes were made with.
    QFont TextFont() const;
    /// Measures with the boxes' font, and leaves room for the return sign.
    LineMeasure Measure() const;

    /// Shows the whole page.
    void ShowAll(const ArticleSession &session);
    /// Shows what a character changed that was typed, or taken back, on the same page; `line` and `column`
    /// are where the session was before.
    void ShowStep(const ArticleSession &session, int line, int column);
    /// Where the next character is typed, in the window.
    QRect TypingArea(const ArticleSession &session) const;

private:
    TypingLine *PromptRow(int line) const;
    TypingLine *InputRow(int line) const; ///< null where the text itself is typed over
    void ShowLine(const ArticleSession &session, int line);
    void ShowCharacter(const ArticleSession &session, int line, int column);
    void ShowLineEnd(const ArticleSession &session, int line);
    void ShowPosition(const ArticleSession &session, int line);

    QWidget *m_window;
    DisplayForm m_form = DisplayForm::PageAndInput;
    std::vector<ArticleBox *> m_boxes;
};
