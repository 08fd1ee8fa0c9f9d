#include "ui/records/CharacterMistakesPage.h"

#include "core/records/OneLine.h"
#include "ui/records/ManageLayout.h"
#include "ui/skin/Fonts.h"
#include "ui/widgets/ElidedLabel.h"
#include "ui/widgets/MarkBox.h"
#include "ui/widgets/MarkGrid.h"
#include "ui/widgets/SkinButton.h"

using namespace Qt::Literals::StringLiterals;

CharacterMistakesPage::CharacterMistakesPage(IUserRecord &store, QWidget *parent)
    : MistakesPage({u"Pic_Hanzi"_s, tr("Wrong characters"), u"UR_MISTAKEHANZI_BACK"_s, u"Hanzi"_s,
                    u"BTN_UR_CREATELESSON"_s},
                   1, store, parent)
    , m_amount(new ElidedLabel(u"labAmount"_s, tr("Number of characters"), this))
{
    m_amount->setFont(Public_Function::InterfaceFont(10));
    m_amount->setGeometry(35, 35, 300, 20);
    QList<MarkBox *> boxes;
    for (int i = 0; i < ManageLayout::mostCharacters; ++i) {
        auto *box = new MarkBox(u"ChkHanzi"_s + QString::number(i), this);
        const QPoint at = ManageLayout::CharacterBox(i);
        box->setGeometry(at.x() - MarkBox::Margin, at.y() - 7, 47, 28);
        boxes += box;
    }
    SetBoxes(boxes, ManageLayout::charactersPerRow);
    m_selectAll = AddButton(u"XBtn_SelectAll"_s, tr("Select &all"), u"BTN_UR_SELECTALL"_s);
    m_selectNone = AddButton(u"XBtn_SelectNone"_s, tr("Select n&one"), u"BTN_UR_SELECTNONE"_s);
    PlaceFromLeft({m_selectAll, m_selectNone});
    PlaceFromRight({LessonButton(), DeleteButton()});
    setTabOrder(boxes.constLast(), m_selectAll);
    setTabOrder(m_selectAll, m_selectNone);
    setTabOrder(m_selectNone, DeleteButton());
    connect(m_selectAll, &SkinButton::clicked, this, [this] { Grid()->TickAll(true); });
    connect(m_selectNone, &SkinButton::clicked, this, [this] { Grid()->TickAll(false); });
}

void CharacterMistakesPage::ShowMistakes(const std::vector<MistakeRecord> &frequent, int amount)
{
    m_amount->SetText(u"Wrong Word:"_s + QString::number(amount));
    int index = 0;
    for (const MistakeRecord &record : frequent)
        Grid()->At(index++)->SetContent(OneLine(record.Char, 8), 14);
    for (SkinButton *button : {m_selectAll, m_selectNone})
        button->setEnabled(!frequent.empty());
}
