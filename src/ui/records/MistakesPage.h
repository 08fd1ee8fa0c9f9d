#pragma once

#include "core/records/MistakeHistory.h"
#include "ui/records/ManagePage.h"

class MarkBox;
class MarkGrid;

/// What the two pages of mistyped characters share: a box for each of the most frequent ones, and a button
/// that deletes the ticked ones.
class MistakesPage : public ManagePage
{
    Q_OBJECT

public:
    void Refresh() final;

protected:
    struct Names
    {
        QString page;       ///< of the picture box
        QString accessible; ///< what a person would call the page
        QString background; ///< of the skin
        QString suffix;     ///< of the names of the buttons
        QString lessonButton;
    };
    MistakesPage(const Names &names, int language, IUserRecord &store, QWidget *parent);

    /// To be called once, with as many boxes as are shown at the most.
    void SetBoxes(const QList<MarkBox *> &boxes, int columns);
    virtual void ShowMistakes(const std::vector<MistakeRecord> &frequent, int amount) = 0;
    virtual bool MayDelete() = 0;

    MarkGrid *Grid() const { return m_grid; }
    SkinButton *DeleteButton() const { return m_delete; }
    SkinButton *LessonButton() const { return m_createLesson; }

    void keyPressEvent(QKeyEvent *event) override;

private:
    void SetButtons();
    void DeleteTicked();

    MistakeHistory m_history;
    std::vector<MistakeRecord> m_frequent;
    QList<MarkBox *> m_boxes;
    MarkGrid *m_grid = nullptr;
    SkinButton *m_delete;
    SkinButton *m_createLesson;
};
