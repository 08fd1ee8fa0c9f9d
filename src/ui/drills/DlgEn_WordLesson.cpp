#include "ui/drills/DlgEn_WordLesson.h"

#include "core/drills/DictionaryCatalogue.h"
#include "ui/skin/DialogStyle.h"
#include "ui/widgets/ChoiceBox.h"
#include "ui/widgets/SkinButton.h"

#include <QLabel>
#include <QListWidget>

using namespace Qt::Literals::StringLiterals;

DlgEn_WordLesson::DlgEn_WordLesson(QWidget *owner)
    : DrillDialog(u"DlgEn_WordLesson"_s, QSize(360, 400), owner)
    , cbxClass(new ChoiceBox(u"cbxClass"_s, tr("Class"), this))
    , lstDictionary(new QListWidget(this))
{
    const QRect area = ContentArea();
    auto *label = new QLabel(tr("C&lass"), this);
    Public_Function::StyleDialogLabel(label);
    label->setBuddy(cbxClass);
    label->setGeometry(area.left(), area.top(), 52, 28);
    cbxClass->setGeometry(area.left() + 52, area.top(), area.width() - 52, 28);
    lstDictionary->setObjectName(u"lstDictionary"_s);
    lstDictionary->setAccessibleName(tr("Thesauri"));
    lstDictionary->setGeometry(area.adjusted(0, 38, 0, 0));
    Public_Function::StyleDialogList(lstDictionary);

    for (const DictionaryCatalogue::Class &dictionaries : DictionaryCatalogue::Classes())
        cbxClass->addItem(dictionaries.name);
    FillDictionaries();
    connect(cbxClass, &QComboBox::currentIndexChanged, this, &DlgEn_WordLesson::FillDictionaries);
    connect(lstDictionary, &QListWidget::itemDoubleClicked, this, &DlgEn_WordLesson::accept);
    FinishDialog({cbxClass, lstDictionary});
    lstDictionary->setFocus();
}

void DlgEn_WordLesson::FillDictionaries()
{
    lstDictionary->clear();
    for (const DictionaryCatalogue::Dictionary &dictionary :
         DictionaryCatalogue::Classes().at(cbxClass->currentIndex()).dictionaries)
        lstDictionary->addItem(dictionary.displayName);
    lstDictionary->setCurrentRow(0);
}

void DlgEn_WordLesson::accept()
{
    const DictionaryCatalogue::Class &chosen = DictionaryCatalogue::Classes().at(cbxClass->currentIndex());
    const DictionaryCatalogue::Dictionary &dictionary =
        chosen.dictionaries.at(qMax(0, lstDictionary->currentRow()));
    m_name = dictionary.displayName;
    m_path = chosen.Path();
    m_fileName = dictionary.fileName;
    DrillDialog::accept();
}
