#pragma once

#include <QList>
#include <QObject>

class MarkBox;

/// Boxes in rows and columns that are one stop of the Tab key: the arrow keys, Home and End lead from one to
/// another.
class MarkGrid final : public QObject
{
    Q_OBJECT

public:
    MarkGrid(const QList<MarkBox *> &boxes, int columns, QObject *parent);

    /// Shows the first `count` boxes without a tick and hides the others. A box that is hidden passes the
    /// focus on.
    void ShowFirst(int count);
    int Count() const { return m_count; }
    MarkBox *At(int index) const { return m_boxes[index]; }
    /// The indices of the ticked boxes.
    QList<int> Ticked() const;
    void TickAll(bool tick);
    bool HasFocus() const;
    /// Gives the focus to the box that had it last; false when there is none.
    bool TakeFocus();

Q_SIGNALS:
    void TicksChanged();
    /// The last box was hidden while it had the focus.
    void FocusLost();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void SetCurrent(int index);
    int IndexFor(int key) const;

    QList<MarkBox *> m_boxes;
    int m_columns;
    int m_count = 0;
    int m_current = 0;
};
