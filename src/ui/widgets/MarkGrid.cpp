#include "ui/widgets/MarkGrid.h"

#include "ui/widgets/MarkBox.h"

#include <QKeyEvent>
#include <algorithm>
#include <array>

MarkGrid::MarkGrid(const QList<MarkBox *> &boxes, int columns, QObject *parent)
    : QObject(parent)
    , m_boxes(boxes)
    , m_columns(columns)
{
    for (MarkBox *box : m_boxes) {
        box->hide();
        box->installEventFilter(this);
        connect(box, &MarkBox::toggled, this, &MarkGrid::TicksChanged);
    }
    SetCurrent(0);
}

void MarkGrid::SetCurrent(int index)
{
    m_current = index;
    for (int i = 0; i < m_boxes.size(); ++i)
        m_boxes[i]->setFocusPolicy(i == index ? Qt::StrongFocus : Qt::ClickFocus);
}

void MarkGrid::ShowFirst(int count)
{
    const bool focused = HasFocus();
    m_count = count;
    for (int i = 0; i < count; ++i)
        m_boxes[i]->show();
    SetCurrent(std::clamp(m_current, 0, std::max(0, count - 1)));
    if (focused && !TakeFocus())
        Q_EMIT FocusLost();
    for (int i = 0; i < m_boxes.size(); ++i) {
        m_boxes[i]->setChecked(false);
        m_boxes[i]->setVisible(i < count);
    }
}

QList<int> MarkGrid::Ticked() const
{
    QList<int> ticked;
    for (int i = 0; i < m_count; ++i) {
        if (m_boxes[i]->isChecked())
            ticked += i;
    }
    return ticked;
}

void MarkGrid::TickAll(bool tick)
{
    for (int i = 0; i < m_count; ++i)
        m_boxes[i]->setChecked(tick);
}

bool MarkGrid::HasFocus() const
{
    return std::any_of(m_boxes.cbegin(), m_boxes.cend(), [](const MarkBox *box) { return box->hasFocus(); });
}

bool MarkGrid::TakeFocus()
{
    if (m_count == 0)
        return false;
    m_boxes[m_current]->setFocus(Qt::OtherFocusReason);
    return true;
}

int MarkGrid::IndexFor(int key) const
{
    switch (key) {
    case Qt::Key_Left:
        return m_columns > 1 ? m_current - 1 : -1;
    case Qt::Key_Right:
        return m_columns > 1 ? m_current + 1 : -1;
    case Qt::Key_Up:
        return m_current - m_columns;
    case Qt::Key_Down:
        return m_current + m_columns;
    case Qt::Key_Home:
        return 0;
    default:
        return m_count - 1;
    }
}

bool MarkGrid::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn)
        SetCurrent(static_cast<int>(m_boxes.indexOf(static_cast<MarkBox *>(watched))));
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto *press = static_cast<QKeyEvent *>(event);
    constexpr std::array keys{Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,
                              Qt::Key_Down, Qt::Key_Home,  Qt::Key_End};
    if (press->modifiers() & ~Qt::KeypadModifier ||
        std::find(keys.begin(), keys.end(), press->key()) == keys.end())
        return QObject::eventFilter(watched, event);
    const int index = IndexFor(press->key());
    if (index >= 0 && index < m_count)
        m_boxes[index]->setFocus(Qt::TabFocusReason);
    return true;
}
