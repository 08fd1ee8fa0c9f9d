#include "ui/drills/DlgEn_ArticleLesson.h"

#include "core/shell/Public_Define.h"
#include "platform/Files.h"
#include "ui/skin/DialogStyle.h"
#include "ui/widgets/ChoiceBox.h"
#include "ui/widgets/SkinButton.h"

#include <QListWidget>
#include <QRadioButton>

using namespace Qt::Literals::StringLiterals;

DlgEn_ArticleLesson::DlgEn_ArticleLesson(QWidget *owner)
    : DrillDialog(u"DlgEn_ArticleLesson"_s, QSize(440, 420), owner)
    , lstFile(new QListWidget(this))
{
    MakeControls();
    BtnOk->setEnabled(false);
    const QString root = Shared().InstallDir + u"Data\\English\\"_s;
    SetFolderPath(root + u"T_Article\\"_s, root + u"Professional\\"_s);
    for (std::size_t i = 0; i < OpnClass.size(); ++i) {
        const int index = static_cast<int>(i);
        connect(OpnClass[i], &QRadioButton::clicked, this, [this, index] { ChooseClass(index); });
        connect(cbxFolder[i], &QComboBox::currentIndexChanged, this, &DlgEn_ArticleLesson::FillFiles);
        connect(cbxFolder[i], &ChoiceBox::ChosenFromList, lstFile, qOverload<>(&QWidget::setFocus));
    }
    connect(lstFile, &QListWidget::itemDoubleClicked, this, &DlgEn_ArticleLesson::accept);
    FinishDialog({OpnClass[0], cbxFolder[0], OpnClass[1], cbxFolder[1], lstFile});
    lstFile->setFocus();
}

void DlgEn_ArticleLesson::MakeControls()
{
    const QRect area = ContentArea();
    const int optionWidth = 150;
    const std::array<QString, 2> classes{tr("&Articles"), tr("&Professional texts")};
    const std::array<QString, 2> boxNames{tr("Folder of articles"), tr("Folder of professional texts")};
    int top = area.top();
    for (std::size_t i = 0; i < OpnClass.size(); ++i) {
        const QString index = QString::number(i);
        OpnClass[i] = new QRadioButton(classes[i], this);
        OpnClass[i]->setObjectName(u"OpnClass"_s + index);
        Public_Function::StyleDialogOption(OpnClass[i]);
        OpnClass[i]->setGeometry(area.left(), top, OpnClass[i]->sizeHint().width(), 28);
        cbxFolder[i] = new ChoiceBox(u"cbxFolder"_s + index, boxNames[i], this);
        cbxFolder[i]->setGeometry(area.left() + optionWidth, top, area.width() - optionWidth, 28);
        top += 36;
    }
    Public_Function::TabToChosen({OpnClass.cbegin(), OpnClass.cend()});
    lstFile->setObjectName(u"lstFile"_s);
    lstFile->setAccessibleName(tr("Texts"));
    lstFile->setGeometry(QRect(QPoint(area.left(), top + 4), area.bottomRight()));
    Public_Function::StyleDialogList(lstFile);
}

void DlgEn_ArticleLesson::SetFolderPath(const QString &strGeneral, const QString &strProfessional)
{
    m_roots = {strGeneral, strProfessional};
    for (std::size_t i = 0; i < m_roots.size(); ++i) {
        const QSignalBlocker silent(cbxFolder[i]);
        cbxFolder[i]->clear();
        for (const QString &folder : Public_Function::ListFolders(m_roots[i]))
            cbxFolder[i]->addItem(folder.section(u'\\', -1));
    }
    OpnClass[0]->setChecked(true);
    ChooseClass(0);
}

void DlgEn_ArticleLesson::ChooseClass(int chosen)
{
    for (std::size_t i = 0; i < cbxFolder.size(); ++i)
        cbxFolder[i]->setEnabled(static_cast<int>(i) == chosen);
    FillFiles();
}

std::size_t DlgEn_ArticleLesson::ChosenClass() const
{
    return OpnClass[1]->isChecked() ? 1 : 0;
}

QString DlgEn_ArticleLesson::ChosenFolder() const
{
    return m_roots[ChosenClass()] + cbxFolder[ChosenClass()]->currentText();
}

/// A folder without texts leaves the list as it was.
void DlgEn_ArticleLesson::FillFiles()
{
    if (cbxFolder[ChosenClass()]->currentIndex() < 0)
        return;
    const QStringList files = Public_Function::ListFiles(ChosenFolder(), u"txt"_s);
    if (files.isEmpty())
        return;
    lstFile->clear();
    for (const QString &file : files)
        lstFile->addItem(file.section(u'\\', -1));
    lstFile->setCurrentRow(0);
    BtnOk->setEnabled(true);
}

void DlgEn_ArticleLesson::accept()
{
    const QListWidgetItem *item = lstFile->currentItem();
    if (!item)
        return;
    m_articleFile = ChosenFolder() + u'\\' + item->text();
    m_articleMessage = cbxFolder[ChosenClass()]->currentText() + u':' + item->text();
    DrillDialog::accept();
}
