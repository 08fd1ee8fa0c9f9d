#pragma once

#include <QTableView>

/// The top list on its panel: transparent rows of one height, so that a million of them open and scroll at
/// once.
class TopListView final : public QTableView
{
    Q_OBJECT

public:
    static constexpr int RowHeight = 26;
    /// Between a cell's left edge and its text.
    static constexpr int CellPad = 8;

    explicit TopListView(QWidget *parent);

    /// Takes the focus and selects the first row.
    void ShowFirst();

protected:
    void scrollContentsBy(int dx, int dy) override;
    /// Home and End lead to the first and last row, not column.
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
};
