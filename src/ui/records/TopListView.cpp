#include "ui/records/TopListView.h"

#include "ui/skin/DialogStyle.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QStyle>

using namespace Qt::Literals::StringLiterals;

TopListView::TopListView(QWidget *parent)
    : QTableView(parent)
{
    setFrameShape(QFrame::NoFrame);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    horizontalHeader()->hide();
    horizontalHeader()->setMinimumSectionSize(1);
    verticalHeader()->hide();
    // Rows of one fixed height need not be measured, however many there are.
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(RowHeight);
    verticalHeader()->setDefaultSectionSize(RowHeight);
    // What the style leaves free beside the text of any item.
    const int textMargin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    setStyleSheet(
        u"QTableView { background: transparent; color: rgb(40, 46, 58); outline: none; border: none; }"
        "QTableView::item { border: none; padding: 0 %1px; }"
        "QTableView::item:selected { background: rgb(62, 84, 122); color: white; }"
        "QTableView::item:selected:!active { background: rgb(98, 114, 143); }"_s.arg(CellPad - textMargin));
    Public_Function::StyleDialogScrollBar(verticalScrollBar());
}

void TopListView::ShowFirst()
{
    selectRow(0);
    setFocus();
}

void TopListView::scrollContentsBy(int dx, int dy)
{
    QTableView::scrollContentsBy(dx, dy);
    // A table moves its last page down to its own lower edge; here the rows stay on the panel's stripes.
    if (verticalScrollBar()->value() == verticalScrollBar()->maximum()) {
        verticalHeader()->setOffsetToSectionPosition(verticalScrollBar()->value());
        viewport()->update();
    }
}

QModelIndex TopListView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (action == MoveHome || action == MoveEnd)
        modifiers |= Qt::ControlModifier;
    return QTableView::moveCursor(action, modifiers);
}
