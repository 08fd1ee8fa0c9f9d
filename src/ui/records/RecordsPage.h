#pragma once

#include "core/records/TrainingHistory.h"
#include "ui/records/ManagePage.h"

#include <array>

class Chart;
class MarkGrid;
class QLabel;
class RecordRow;

/// The daily records of one group: its speeds as a chart, and a list of five records to a page.
class RecordsPage final : public ManagePage
{
    Q_OBJECT

public:
    struct Names
    {
        QString page;       ///< of the picture box
        QString accessible; ///< what a person would call the group
        QString background; ///< of the skin
        QString box;        ///< of the rows' check boxes, without their number
        QString suffix;     ///< of the names of the buttons
    };
    RecordsPage(const Names &names, int group, IUserRecord &store, QWidget *parent);

    void Refresh() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void MakeControls(const Names &names);
    void ShowRows();
    void ShowChart();
    void ShowPageNumber(int number);
    void DeleteSelected();
    void ClearAll();
    /// A button that cannot be pressed any more passes its focus to the next one that can, or to the rows.
    void SetUsable(SkinButton *button, bool usable);
    void SetButtons();

    TrainingHistory m_history;
    int m_page = 0;
    Chart *m_chart;
    std::array<RecordRow *, TrainingHistory::RowsPerPage> m_rows{};
    MarkGrid *m_grid = nullptr;
    SkinButton *m_pageUp = nullptr;
    SkinButton *m_pageDown = nullptr;
    SkinButton *m_deleteSelected = nullptr;
    SkinButton *m_clearAll = nullptr;
    QLabel *m_pageNumber = nullptr;
};
