#include "ui/speedtest/DlgSelLsn.h"

#include "platform/Paths.h"
#include "ui/skin/DialogStyle.h"
#include "ui/widgets/ChoiceBox.h"
#include "ui/widgets/SkinButton.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QRadioButton>

using namespace Qt::Literals::StringLiterals;

DlgSelLsn::DlgSelLsn(const QString &currentFile, QWidget *owner)
    : SkinnedDialog(owner)
    , m_folderLabel(new QLabel(tr("&Folder"), this))
    , cbxFolder(new ChoiceBox(u"cbxFolder"_s, tr("Folder"), this))
    , lstFile(new QListWidget(this))
    , BtnOk(new SkinButton(u"BtnOk"_s, tr("&OK"), this))
    , BtnCancel(new SkinButton(u"BtnCancel"_s, tr("&Cancel"), this))
    , m_chosenFile(currentFile)
{
    setObjectName(u"DlgSelLsn"_s);
    resize(460, 420);
    MakeControls();
    SkinDialog(u"Select courses"_s);

    const TestMaterial::Place place = TestMaterial::PlaceOf(currentFile);
    optLanguage[place.language == TestMaterial::Language::Chinese]->setChecked(true);
    optClass[place.materialClass == TestMaterial::Class::Professional]->setChecked(true);
    FillFolders();
    cbxFolder->setCurrentIndex(qMax(0, cbxFolder->findText(place.folder, Qt::MatchFixedString)));
    FillFiles();

    for (QRadioButton *option : {optLanguage[0], optLanguage[1], optClass[0], optClass[1]}) {
        connect(option, &QRadioButton::toggled, this, [this](bool chosen) {
            if (chosen)
                FillFolders();
            if (chosen)
                FillFiles();
        });
    }
    connect(cbxFolder, &QComboBox::currentIndexChanged, this, &DlgSelLsn::FillFiles);
    connect(lstFile, &QListWidget::itemDoubleClicked, this, &DlgSelLsn::accept);
    connect(lstFile, &QListWidget::itemSelectionChanged, this,
            [this] { BtnOk->setEnabled(!lstFile->selectedItems().isEmpty()); });
    connect(BtnOk, &SkinButton::clicked, this, &DlgSelLsn::accept);
    connect(BtnCancel, &SkinButton::clicked, this, &DlgSelLsn::reject);
    lstFile->setFocus();
}

void DlgSelLsn::MakeControls()
{
    const int left = 20;
    const int content = width() - 2 * left;
    const int languageWidth = 192;
    int top = TitleHeight() + 12;
    const auto addGroup = [&](const QString &title, const QString &name, const std::array<QString, 2> &texts,
                              std::array<QRadioButton *, 2> &options, int x, int w) {
        auto *group = new QGroupBox(title, this);
        group->setGeometry(x, top, w, 62);
        auto *row = new QHBoxLayout(group);
        row->setContentsMargins(10, 4, 6, 6);
        for (std::size_t i = 0; i < options.size(); ++i) {
            options[i] = new QRadioButton(texts[i], group);
            options[i]->setObjectName(name + QString::number(i));
            row->addWidget(options[i]);
        }
        Public_Function::TabToChosen({options.cbegin(), options.cend()});
        Public_Function::StyleDialogGroup(group);
    };
    addGroup(tr("Language"), u"optLanguage"_s, {tr("&English"), tr("C&hinese")}, optLanguage, left,
             languageWidth);
    addGroup(tr("Material"), u"optClass"_s, {tr("&General"), tr("&Professional")}, optClass,
             left + languageWidth + 12, content - languageWidth - 12);
    top += 62 + 12;

    Public_Function::StyleDialogLabel(m_folderLabel);
    m_folderLabel->setBuddy(cbxFolder);
    m_folderLabel->setGeometry(left, top, 60, 28);
    cbxFolder->setGeometry(left + 60, top, content - 60, 28);
    top += 28 + 10;
    lstFile->setObjectName(u"lstFile"_s);
    lstFile->setAccessibleName(tr("Texts"));
    lstFile->setGeometry(left, top, content, height() - 62 - top);
    Public_Function::StyleDialogList(lstFile);

    BtnOk->move(0, height() - 45);
    BtnCancel->move(0, height() - 45);
    SkinOkCancel(BtnOk, BtnCancel, 0);
    SetDefaultButton(BtnOk);
    const std::array<QWidget *, 8> order{optLanguage[0], optLanguage[1], optClass[0], optClass[1],
                                         cbxFolder,      lstFile,        BtnOk,       BtnCancel};
    for (std::size_t i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

TestMaterial::Place DlgSelLsn::ShownPlace() const
{
    TestMaterial::Place place;
    if (optLanguage[1]->isChecked())
        place.language = TestMaterial::Language::Chinese;
    if (optClass[1]->isChecked()) {
        place.materialClass = TestMaterial::Class::Professional;
        place.folder = cbxFolder->currentText();
    }
    return place;
}

void DlgSelLsn::FillFolders()
{
    const QSignalBlocker silent(cbxFolder);
    cbxFolder->clear();
    const bool professional = optClass[1]->isChecked();
    if (professional)
        cbxFolder->addItems(TestMaterial::Folders(ShownPlace().language));
    cbxFolder->setEnabled(professional);
    m_folderLabel->setEnabled(professional);
}

void DlgSelLsn::FillFiles()
{
    const TestMaterial::Place place = ShownPlace();
    const QStringList files = TestMaterial::Files(place);
    lstFile->clear();
    lstFile->addItems(files);
    int row = files.isEmpty() ? -1 : 0;
    if (place == TestMaterial::PlaceOf(m_chosenFile)) {
        const QString name = Public_Function::ProductPath(m_chosenFile).section(u'\\', -1);
        for (int i = 0; i < files.size(); ++i) {
            if (files[i].compare(name, Qt::CaseInsensitive) == 0)
                row = i;
        }
    }
    lstFile->setCurrentRow(row);
    BtnOk->setEnabled(row >= 0);
}

void DlgSelLsn::accept()
{
    const QListWidgetItem *item = lstFile->currentItem();
    if (!item)
        return;
    m_chosenFile = TestMaterial::FilePath(ShownPlace(), item->text());
    SkinnedDialog::accept();
}
