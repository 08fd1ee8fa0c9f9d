#include "ui/records/MistakesPage.h"

#include "core/records/OneLine.h"
#include "ui/widgets/MarkBox.h"
#include "ui/widgets/MarkGrid.h"
#include "ui/widgets/SkinButton.h"

#include <QKeyEvent>

using namespace Qt::Literals::StringLiterals;

MistakesPage::MistakesPage(const Names &names, int language, IUserRecord &store, QWidget *parent)
    : ManagePage(names.page, names.accessible, names.background, parent)
    , m_history(store, language)
    , m_delete(AddButton(u"XBtn_RecordDel_"_s + names.suffix, tr("&Delete"), u"BTN_UR_RECORDDEL"_s))
    , m_createLesson(
          AddButton(u"XBtn_CreateLesson_"_s + names.suffix, tr("Create l&esson"), names.lessonButton))
{
    connect(m_delete, &SkinButton::clicked, this, &MistakesPage::DeleteTicked);
    // The key drill makes its lesson of mistyped keys itself.
    m_createLesson->setEnabled(false);
}

void MistakesPage::SetBoxes(const QList<MarkBox *> &boxes, int columns)
{
    m_boxes = boxes;
    m_grid = new MarkGrid(boxes, columns, this);
    setTabOrder(boxes.constLast(), m_delete);
    connect(m_grid, &MarkGrid::TicksChanged, this, &MistakesPage::SetButtons);
    connect(m_grid, &MarkGrid::FocusLost, this, &MistakesPage::FocusLost);
}

void MistakesPage::Refresh()
{
    m_history.Read();
    ShowReadable(m_history.IsReadable());
    m_frequent = m_history.Frequent(static_cast<int>(m_boxes.size()));
    for (std::size_t i = 0; i < m_frequent.size(); ++i) {
        MarkBox *const box = m_boxes[static_cast<qsizetype>(i)];
        const QString character = OneLine(m_frequent[i].Char, 40);
        const QString said = tr("%1, mistyped %2 times").arg(character).arg(m_frequent[i].Count);
        box->setAccessibleName(said);
        box->setToolTip(said);
        box->setAccessibleDescription(tr("tick it to delete it"));
    }
    m_grid->ShowFirst(static_cast<int>(m_frequent.size()));
    ShowMistakes(m_frequent, m_history.Amount());
    SetButtons();
}

void MistakesPage::SetButtons()
{
    const bool usable = !m_grid->Ticked().isEmpty();
    if (!usable && m_delete->hasFocus() && !m_grid->TakeFocus())
        Q_EMIT FocusLost();
    m_delete->setEnabled(usable);
}

void MistakesPage::DeleteTicked()
{
    const QList<int> ticked = m_grid->Ticked();
    if (ticked.isEmpty() || !MayDelete())
        return;
    QStringList characters;
    for (const int index : ticked)
        characters += m_frequent[static_cast<std::size_t>(index)].Char;
    const bool done = m_history.Delete(characters);
    Refresh();
    CheckDeletion(done);
}

void MistakesPage::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Delete)
        m_delete->click();
    else
        ManagePage::keyPressEvent(event);
}
