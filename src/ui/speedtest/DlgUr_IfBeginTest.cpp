#include "ui/speedtest/DlgUr_IfBeginTest.h"

#include "core/records/IUserRecord.h"
#include "core/shell/Public_Define.h"
#include "ui/shell/ShowMessage.h"
#include "ui/skin/DialogStyle.h"
#include "ui/skin/SkinLibrary.h"
#include "ui/widgets/SkinButton.h"
#include "ui/widgets/TickBox.h"

#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

DlgUr_IfBeginTest::DlgUr_IfBeginTest(QWidget *owner)
    : SkinnedDialog(owner)
    , LabText(new QLabel(u"Test for typing speed first, then it will give you some suggestions at the "
                         "beginning of training."_s,
                         this))
    , m_testFor(new QGroupBox(u"Test for"_s, this))
    , OptEnglish(new QRadioButton(u"&English-typing speed"_s, m_testFor))
    , OptChinese(new QRadioButton(u"&Chinease-typing speed"_s, m_testFor))
    , ChkNotDisplay(new TickBox(u"ChkNotDisplay"_s, u"&Don't display this dialog next time."_s, this))
    , XBtnYes(new SkinButton(u"XBtnYes"_s, tr("&Yes"), this))
    , XBtnNo(new SkinButton(u"XBtnNo"_s, tr("&No"), this))
{
    setObjectName(u"DlgUr_IfBeginTest"_s);
    setAccessibleDescription(LabText->text());
    resize(380, 310);
    PlaceControls();
    connect(ChkNotDisplay, &TickBox::toggled, this, [this](bool ticked) {
        if (ticked)
            ForbidQuestion();
    });
    connect(XBtnYes, &SkinButton::clicked, this, &DlgUr_IfBeginTest::accept);
    connect(XBtnNo, &SkinButton::clicked, this, &DlgUr_IfBeginTest::reject);
    SkinDialog(u"Typing Speed Test"_s);
    OptEnglish->setChecked(true);
    OptEnglish->setFocus();
}

void DlgUr_IfBeginTest::PlaceControls()
{
    const int left = 24;
    const int content = width() - 2 * left;
    const int top = TitleHeight() + 14;
    LabText->setObjectName(u"LabText"_s);
    LabText->setWordWrap(true);
    Public_Function::StyleDialogLabel(LabText);
    LabText->setGeometry(left, top, content, 44);

    m_testFor->setGeometry(left, top + 54, content, 98);
    auto *column = new QVBoxLayout(m_testFor);
    OptEnglish->setObjectName(u"OptEnglish"_s);
    OptChinese->setObjectName(u"OptChinese"_s);
    column->addWidget(OptEnglish);
    column->addWidget(OptChinese);
    Public_Function::TabToChosen({OptEnglish, OptChinese});
    Public_Function::StyleDialogGroup(m_testFor);

    ChkNotDisplay->move(left, top + 164);
    ChkNotDisplay->resize(ChkNotDisplay->sizeHint().width(), 26);

    const SkinLibrary library;
    XBtnYes->SetButton(u"BTN_YES"_s, library);
    XBtnNo->SetButton(u"BTN_NO"_s, library);
    const int gap = (width() - XBtnYes->width() - XBtnNo->width()) / 3;
    XBtnYes->move(gap, height() - 45);
    XBtnNo->move(width() - gap - XBtnNo->width(), height() - 45);
    SetDefaultButton(XBtnYes);
    setTabOrder(OptEnglish, OptChinese);
    setTabOrder(OptChinese, ChkNotDisplay);
    setTabOrder(ChkNotDisplay, XBtnYes);
    setTabOrder(XBtnYes, XBtnNo);
}

void DlgUr_IfBeginTest::ForbidQuestion()
{
    IUserRecord record;
    record.SetCurrentUser(Shared().CurrentUserName);
    if (!record.SetIfBeginTest(false))
        Public_Function::ShowMessage(tr("This could not be stored, so you will be asked again."),
                                     u"Quorvex"_s, MessageIcon::Error, MessageButtons::Ok);
}

void DlgUr_IfBeginTest::accept()
{
    m_nResultVal = Public_Function::MessageYes;
    m_bEnglishTest = OptEnglish->isChecked();
    SkinnedDialog::accept();
}
