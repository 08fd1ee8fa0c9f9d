#pragma once

#include "ui/speedtest/TestLayout.h"

#include <QRect>
#include <vector>

class QWidget;
class TypingBox;
class TypingLine;

/// The boxes of one page of text, in the layout of a display mode.
class TestPage
{
public:
    explicit TestPage(QWidget *window)
        : m_window(window)
    {
    }

    /// Makes the boxes anew, empty. `origin` is that of the content area.
    void Build(TestLayout::DisplayMode mode, const QPoint &origin);

    TestLayout::DisplayMode Mode() const { return m_mode; }
    int Rows() const { return TestLayout::RowsPerPage(m_mode); }
    /// How many columns a line may have.
    int Columns() const;

    /// The box with the text to copy (`rtfSubject`), or null in TypedAlone. Rows count from 0.
    TypingLine *Subject(int row) const;
    /// The box where typing shows (`rtfInput`); in TypedOver that is the one with the text.
    TypingLine *Input(int row) const;

    /// Shows where typing goes on, and puts the typing box there.
    void ShowPosition(int row, int position, TypingBox *box) const;
    /// No row has a typing position.
    void HidePosition() const;

private:
    QWidget *m_window;
    TestLayout::DisplayMode m_mode = TestLayout::DisplayMode::TypedAlone;
    std::vector<TypingLine *> m_subjects;
    std::vector<TypingLine *> m_inputs;
};
