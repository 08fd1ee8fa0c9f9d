#include "ui/speedtest/DlgTestSelect.h"

#include "core/speedtest/TestMaterial.h"
#include "platform/Files.h"
#include "ui/shell/ChooseFile.h"
#include "ui/shell/ShowMessage.h"
#include "ui/skin/DialogStyle.h"
#include "ui/speedtest/PrintText.h"
#include "ui/widgets/ElidedLabel.h"
#include "ui/widgets/SkinButton.h"

#include <QButtonGroup>
#include <QGuiApplication>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::Literals::StringLiterals;

DlgTestSelect::DlgTestSelect(QWidget *owner)
    : SkinnedDialog(owner)
    , OptBookFile(new QRadioButton(tr("A &sample text of the program"), this))
    , optUserFile(new QRadioButton(tr("A &text file of my own"), this))
    , Command1(new QPushButton(tr("&Browse..."), this))
    , lblFile(new ElidedLabel(u"lblFile"_s, tr("Chosen file"), this))
    , OptFreeInput(new QRadioButton(tr("&Free input, without a text"), this))
    , BtnOk(new SkinButton(u"BtnOk"_s, tr("&OK"), this))
    , BtnCancel(new SkinButton(u"BtnCancel"_s, tr("&Cancel"), this))
{
    setObjectName(u"DlgTestSelect"_s);
    resize(440, 320);
    MakeControls();
    SkinDialog(u"Select text"_s);
    for (QRadioButton *option : {OptBookFile, optUserFile, OptFreeInput})
        connect(option, &QRadioButton::toggled, this, &DlgTestSelect::ApplyChoice);
    connect(Command1, &QPushButton::clicked, this, &DlgTestSelect::ChooseOwnFile);
    connect(BtnOk, &SkinButton::clicked, this, &DlgTestSelect::accept);
    connect(BtnCancel, &SkinButton::clicked, this, &DlgTestSelect::reject);
    OptBookFile->setChecked(true);
    OptBookFile->setFocus();
}

void DlgTestSelect::MakeControls()
{
    const int left = 24;
    const int indent = left + 24;
    const int right = width() - left;
    int top = TitleHeight() + 16;
    const auto place = [&](QRadioButton *option, const QString &name) {
        option->setObjectName(name);
        Public_Function::StyleDialogOption(option);
        option->setGeometry(left, top, option->sizeHint().width(), 26);
    };
    place(OptBookFile, u"OptBookFile"_s);
    top += 30;
    // Left to themselves, all seven options would be one group.
    auto *materials = new QButtonGroup(this);
    for (QRadioButton *option : {OptBookFile, optUserFile, OptFreeInput})
        materials->addButton(option);
    auto *sampleTexts = new QButtonGroup(this);
    auto *samples = new QWidget(this);
    samples->setGeometry(indent, top, right - indent, 54);
    const std::array<QString, 4> names{tr("S&weden"), tr("Sc&ience"), tr("Ch&ristmas"), tr("&Halvern")};
    for (std::size_t i = 0; i < optFile.size(); ++i) {
        optFile[i] = new QRadioButton(names[i], samples);
        optFile[i]->setObjectName(u"optFile"_s + QString::number(i));
        sampleTexts->addButton(optFile[i]);
        Public_Function::StyleDialogOption(optFile[i]);
        const int column = static_cast<int>(i) % 2;
        const int row = static_cast<int>(i) / 2;
        optFile[i]->setGeometry(column * samples->width() / 2, row * 27, optFile[i]->sizeHint().width(), 26);
    }
    optFile[0]->setChecked(true);
    top += 54 + 12;
    place(optUserFile, u"optUserFile"_s);
    Command1->setObjectName(u"Command1"_s);
    Command1->setAccessibleName(tr("Browse for a text file"));
    Public_Function::StyleDialogButton(Command1);
    Command1->setGeometry(right - 104, top - 1, 104, 28);
    top += 30;
    lblFile->setGeometry(indent + 4, top, right - indent - 4, 20);
    top += 20 + 12;
    place(OptFreeInput, u"OptFreeInput"_s);

    Public_Function::TabToChosen({OptBookFile, optUserFile, OptFreeInput});
    Public_Function::TabToChosen({optFile.cbegin(), optFile.cend()});

    BtnOk->move(0, height() - 45);
    BtnCancel->move(0, height() - 45);
    SkinOkCancel(BtnOk, BtnCancel, 0);
    SetDefaultButton(BtnOk);
    const std::array<QWidget *, 10> order{OptBookFile, optFile[0], optFile[1],   optFile[2], optFile[3],
                                          optUserFile, Command1,   OptFreeInput, BtnOk,      BtnCancel};
    for (std::size_t i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void DlgTestSelect::ApplyChoice()
{
    for (QRadioButton *option : optFile)
        option->setEnabled(OptBookFile->isChecked());
    Command1->setEnabled(optUserFile->isChecked());
    if (optUserFile->isChecked())
        return;
    m_userFile.clear();
    lblFile->SetText({});
}

void DlgTestSelect::ChooseOwnFile()
{
    const QString chosen = Public_Function::ChooseTextFile(Public_Function::FilePurpose::Open, this);
    if (chosen.isEmpty())
        return;
    m_userFile = chosen;
    lblFile->SetText(chosen);
}

void DlgTestSelect::accept()
{
    m_chosenPath.clear();
    if (optUserFile->isChecked())
        m_chosenPath = m_userFile;
    for (std::size_t i = 0; i < optFile.size(); ++i) {
        if (OptBookFile->isChecked() && optFile[i]->isChecked())
            m_chosenPath = TestMaterial::SampleFile(static_cast<int>(i));
    }
    if (!m_chosenPath.isEmpty())
        OfferPrint();
    m_result = true;
    SkinnedDialog::accept();
}

void DlgTestSelect::OfferPrint() const
{
    const qint16 answer =
        Public_Function::ShowMessage(u"You have selected a text file,\nwould you print it?"_s, u"Quorvex"_s,
                                     MessageIcon::Question, MessageButtons::YesNo);
    if (answer != Public_Function::MessageYes)
        return;
    const QString name = m_chosenPath.section(u'\\', -1);
    const std::optional<QString> rtfContent = Public_Function::ReadTextFile(m_chosenPath);
    QString problem;
    if (!rtfContent) {
        problem = tr("The file \"%1\" cannot be read, so it is not printed.").arg(name);
    } else {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        const auto outcome = Public_Function::PrintText(*rtfContent, name);
        QGuiApplication::restoreOverrideCursor();
        if (outcome == Public_Function::PrintOutcome::NoPrinter)
            problem = tr("There is no default printer, so \"%1\" is not printed.").arg(name);
        else if (outcome == Public_Function::PrintOutcome::NoModule)
            problem = tr("\"%1\" is not printed, because this file cannot be loaded:\n%2")
                          .arg(name, Public_Function::PrintModulePath());
        else if (outcome == Public_Function::PrintOutcome::Failed)
            problem = tr("The printer did not take \"%1\".").arg(name);
    }
    if (!problem.isEmpty())
        Public_Function::ShowMessage(problem, u"Quorvex"_s, MessageIcon::Error, MessageButtons::Ok);
}
