#include "ui/records/RecordsPage.h"

#include "ui/records/ManageLayout.h"
#include "ui/records/RecordRow.h"
#include "ui/skin/DialogStyle.h"
#include "ui/widgets/Chart.h"
#include "ui/widgets/MarkGrid.h"
#include "ui/widgets/SkinButton.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

RecordsPage::RecordsPage(const Names &names, int group, IUserRecord &store, QWidget *parent)
    : ManagePage(names.page, names.accessible, names.background, parent)
    , m_history(store, group)
    , m_chart(new Chart(u"Chart"_s + names.suffix, tr("Speed of each day"), this))
{
    MakeControls(names);
    connect(m_pageUp, &SkinButton::clicked, this, [this] { ShowPageNumber(m_page - 1); });
    connect(m_pageDown, &SkinButton::clicked, this, [this] { ShowPageNumber(m_page + 1); });
    connect(m_deleteSelected, &SkinButton::clicked, this, &RecordsPage::DeleteSelected);
    connect(m_clearAll, &SkinButton::clicked, this, &RecordsPage::ClearAll);
    connect(m_grid, &MarkGrid::TicksChanged, this, &RecordsPage::SetButtons);
    connect(m_grid, &MarkGrid::FocusLost, this, &RecordsPage::FocusLost);
}

void RecordsPage::MakeControls(const Names &names)
{
    m_chart->SetPanel(false);
    m_chart->SetTextSize(8);
    // It ends where the rows begin, so that turning a page does not paint it anew.
    m_chart->setGeometry(1, ManageLayout::headerHeight, width() - 2,
                         ManageLayout::Row(0).top() - ManageLayout::headerHeight);
    QList<MarkBox *> boxes;
    for (int i = 0; i < TrainingHistory::RowsPerPage; ++i) {
        auto *row = new RecordRow(names.box + QString::number(i), this);
        const QRect stripe = ManageLayout::Row(i);
        const int left = ManageLayout::rowBoxLeft - MarkBox::Margin;
        row->setGeometry(left, stripe.top() + 1, stripe.right() - left, stripe.height() - 2);
        m_rows[static_cast<std::size_t>(i)] = row;
        boxes += row;
    }
    m_grid = new MarkGrid(boxes, 1, this);
    m_pageUp = AddButton(u"XBtn_PageUp_"_s + names.suffix, tr("Page &up"), u"BTN_UR_PAGEUP"_s);
    m_pageDown = AddButton(u"XBtn_PageDown_"_s + names.suffix, tr("Page &down"), u"BTN_UR_PAGEDOWN"_s);
    m_deleteSelected =
        AddButton(u"XBtn_RecordDelSel_"_s + names.suffix, tr("Delete &selected"), u"BTN_UR_RECORDDELSEL"_s);
    m_clearAll =
        AddButton(u"XBtn_RecordClearAll_"_s + names.suffix, tr("&Clear all"), u"BTN_UR_RECORDCLEARALL"_s);
    PlaceFromLeft({m_pageUp, m_pageDown});
    PlaceFromRight({m_deleteSelected, m_clearAll});
    m_pageNumber = new QLabel(this);
    m_pageNumber->setObjectName(u"labPage_"_s + names.suffix);
    Public_Function::StyleDialogLabel(m_pageNumber, 9);
    m_pageNumber->setAlignment(Qt::AlignCenter);
    const int left = m_pageDown->geometry().right() + 1;
    m_pageNumber->setGeometry(left, ManageLayout::buttonTop, m_deleteSelected->x() - left,
                              m_pageDown->height());
}

void RecordsPage::Refresh()
{
    m_history.Read();
    ShowReadable(m_history.IsReadable());
    ShowChart();
    ShowRows();
}

void RecordsPage::ShowChart()
{
    const int amount = m_history.Amount();
    m_chart->setVisible(amount > 1);
    if (amount < 2)
        return;
    ChartData chart;
    chart.emptyText = tr("No speed above 0");
    QList<QDate> dates;
    dates.reserve(amount);
    chart.values.reserve(amount);
    for (int i = 0; i < amount; ++i) {
        dates += m_history.At(i).Date;
        chart.values += static_cast<double>(m_history.At(i).Speed);
    }
    chart.labelOf = [dates, locale = QLocale::system()](qsizetype i) {
        return locale.toString(dates.at(i), QLocale::ShortFormat);
    };
    chart.maximum = static_cast<double>(m_history.HighestSpeed());
    chart.scaleParts = ManageLayout::tenths;
    chart.places.plot = QRectF(ManageLayout::recordPlot.translated(-m_chart->pos()));
    m_chart->SetData(chart);
}

void RecordsPage::ShowRows()
{
    constexpr int most = TrainingHistory::RowsPerPage;
    m_page = std::clamp(m_page, 0, std::max(0, m_history.PageCount() - 1));
    const int first = m_page * most;
    const int count = std::min(most, m_history.Amount() - first);
    for (int i = 0; i < count; ++i)
        m_rows[static_cast<std::size_t>(i)]->ShowRecord(first + i + 1, m_history.At(first + i));
    m_grid->ShowFirst(count);
    m_pageNumber->setText(count > 0 ? tr("Page %1 of %2").arg(m_page + 1).arg(m_history.PageCount())
                                    : QString());
    SetButtons();
}

void RecordsPage::SetUsable(SkinButton *button, bool usable)
{
    const bool focused = !usable && button->hasFocus();
    if (focused && button == m_pageUp && m_pageDown->isEnabled())
        m_pageDown->setFocus();
    else if (focused && button == m_pageDown && m_pageUp->isEnabled())
        m_pageUp->setFocus();
    else if (focused && !m_grid->TakeFocus())
        Q_EMIT FocusLost();
    button->setEnabled(usable);
}

void RecordsPage::SetButtons()
{
    const bool up = m_page > 0;
    const bool down = m_page + 1 < m_history.PageCount();
    // Those that become usable first: one of them may be where the focus goes.
    for (const auto &[button, usable] : {std::pair(m_pageUp, up), {m_pageDown, down}}) {
        if (usable)
            button->setEnabled(true);
    }
    SetUsable(m_pageUp, up);
    SetUsable(m_pageDown, down);
    SetUsable(m_deleteSelected, !m_grid->Ticked().isEmpty());
    SetUsable(m_clearAll, m_history.Amount() > 0);
}

void RecordsPage::ShowPageNumber(int number)
{
    m_page = number;
    ShowRows();
}

void RecordsPage::DeleteSelected()
{
    QList<int> indices = m_grid->Ticked();
    if (indices.isEmpty() || !ConfirmDeletion())
        return;
    for (int &index : indices)
        index += m_page * TrainingHistory::RowsPerPage;
    const bool done = m_history.Delete(indices);
    Refresh();
    CheckDeletion(done);
}

void RecordsPage::ClearAll()
{
    if (!ConfirmDeletion())
        return;
    const bool done = m_history.Clear();
    Refresh();
    CheckDeletion(done);
}

void RecordsPage::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_PageUp:
        m_pageUp->click();
        break;
    case Qt::Key_PageDown:
        m_pageDown->click();
        break;
    case Qt::Key_Delete:
        m_deleteSelected->click();
        break;
    default:
        ManagePage::keyPressEvent(event);
    }
}
