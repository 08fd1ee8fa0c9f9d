#include "ui/speedtest/DlgUr_BeginTestResult.h"

#include "core/engine/Level.h"
#include "core/engine/ModuleName.h"
#include "core/records/NumberText.h"
#include "ui/skin/DialogStyle.h"
#include "ui/skin/SkinLibrary.h"
#include "ui/widgets/SkinButton.h"

#include <QLabel>

using namespace Qt::Literals::StringLiterals;

DlgUr_BeginTestResult::DlgUr_BeginTestResult(bool english, QWidget *owner)
    : SkinnedDialog(owner)
    , m_english(english)
    , LabResult(new QLabel(this))
    , LabSuggestion(new QLabel(this))
    , XBtnAccept(new SkinButton(u"XBtnAccept"_s, tr("&Accept"), this))
    , XBtnAgain(new SkinButton(u"XBtnAgain"_s, tr("A&gain"), this))
    , XBtnHome(new SkinButton(u"XBtnHome"_s, tr("&Home"), this))
{
    setObjectName(u"DlgUr_BeginTestResult"_s);
    resize(380, 240);
    PlaceControls();
    connect(XBtnAccept, &SkinButton::clicked, this, &DlgUr_BeginTestResult::accept);
    connect(XBtnAgain, &SkinButton::clicked, this, [this] {
        m_nRtnVal = Choice::Again;
        done(QDialog::Accepted);
    });
    connect(XBtnHome, &SkinButton::clicked, this, &DlgUr_BeginTestResult::reject);
    SkinDialog(u"Suggestion"_s);
    XBtnAccept->setFocus();
}

void DlgUr_BeginTestResult::PlaceControls()
{
    const int left = 28;
    const int top = TitleHeight() + 18;
    LabResult->setObjectName(u"LabResult"_s);
    LabSuggestion->setObjectName(u"LabSuggestion"_s);
    Public_Function::StyleDialogLabel(LabResult);
    Public_Function::StyleDialogLabel(LabSuggestion, 10, true);
    LabSuggestion->setWordWrap(true);
    LabResult->setGeometry(left, top, width() - 2 * left, 64);
    LabSuggestion->setGeometry(left, top + 76, width() - 2 * left, 44);

    const SkinLibrary library;
    XBtnAccept->SetButton(u"BTN_ACCEPT"_s, library);
    XBtnAgain->SetButton(u"BTN_AGAIN"_s, library);
    XBtnHome->SetButton(u"BTN_HOME"_s, library);
    const int gap = (width() - XBtnAccept->width() - XBtnAgain->width() - XBtnHome->width()) / 4;
    int x = gap;
    for (SkinButton *button : {XBtnAccept, XBtnAgain, XBtnHome}) {
        button->move(x, height() - 45);
        x += button->width() + gap;
    }
    SetDefaultButton(XBtnAccept);
    setTabOrder(XBtnAccept, XBtnAgain);
    setTabOrder(XBtnAgain, XBtnHome);
}

int DlgUr_BeginTestResult::Level() const
{
    return Public_Function::GetLevel(m_english ? InputKind::None : InputKind::Pinyin, m_sglSpeed,
                                     m_sglVeracity);
}

void DlgUr_BeginTestResult::SetSpeed_Veracity(float sglSpeed, float sglVeracity)
{
    m_sglSpeed = sglSpeed;
    m_sglVeracity = sglVeracity;
    LabResult->setText(
        u"Result:\n\n    Speed%1   Correct Rate%2%"_s.arg(ShortestText(sglSpeed), ShortestText(sglVeracity)));
    LabSuggestion->setText(u"Suggestion:"_s + Public_Function::GetModuleName(Level()));
    setAccessibleDescription(LabResult->text() + u'\n' + LabSuggestion->text());
}

void DlgUr_BeginTestResult::accept()
{
    m_nRtnVal = Choice::Accept;
    SkinnedDialog::accept();
}
