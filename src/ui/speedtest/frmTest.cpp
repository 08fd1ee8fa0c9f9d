#include "ui/speedtest/frmTest.h"

#include "core/shell/Public_Define.h"
#include "ui/shell/ShowMessage.h"
#include "ui/skin/StatusTexts.h"
#include "ui/speedtest/DlgSelLsn.h"
#include "ui/speedtest/DlgTestSetting.h"
#include "ui/widgets/TypingLine.h"

#include <QPointer>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using TestLayout::DisplayMode;

namespace {

TypingLine::Look LookOf(KeyMark mark)
{
    switch (mark) {
    case KeyMark::KeyRight:
        return TypingLine::Look::Right;
    case KeyMark::KeyWrong:
        return TypingLine::Look::Wrong;
    case KeyMark::KeyUntyped:
        break;
    }
    return TypingLine::Look::Untyped;
}

QString &CurrentFile()
{
    return Shared().TestFile[static_cast<std::size_t>(std::clamp(Shared().TestSource, 0, 2))];
}

} // namespace

frmTest::frmTest(Navigator &navigator, QWidget *owner)
    : frmTest(navigator, owner, std::make_unique<KTest>())
{
}

frmTest::frmTest(Navigator &navigator, QWidget *owner, std::unique_ptr<KTest> test)
    : TestWindow(u"frmTest"_s, navigator, std::move(test), owner)
    , m_test(static_cast<KTest &>(Engine()))
{
}

DisplayMode frmTest::Mode() const
{
    const int mode =
        Shared().TestDisplayMode[static_cast<std::size_t>(std::clamp(Shared().TestSource, 0, 2))];
    if (mode >= 0 && mode <= 3)
        return static_cast<DisplayMode>(mode);
    return CurrentSource() == Source::Printed ? DisplayMode::TypedAlone : DisplayMode::OneAboveTheOther;
}

void frmTest::Load()
{
    QString &screenText = Shared().TestFile[0];
    if (screenText.isEmpty()) {
        screenText = Shared().InstallDir + u"Data\\English\\E_General\\lunch.txt"_s;
        m_test.m_bEnglish = false;
    }
    LoadTest();
}

void frmTest::LoadTest()
{
    m_test.m_nMaxCols = std::min(Page().Columns(), TypingSession::MostCols);
    if (!m_test.LoadLesson())
        return;
    QString caption = u"Speed Test/"_s + GetModeName();
    if (CurrentSource() != Source::Printed)
        caption += u" —— "_s + m_test.m_sTip;
    ShowLessonTitle(caption);
    while (m_test.IsLineDone() && m_test.SetNextLine()) {
    }
    MakeReady();
    if (m_test.LineCount() == 0) {
        AbortTest();
        ShowHint(tr("This text is empty. Select another lesson."));
    }
}

void frmTest::FillRow(int row, int line)
{
    if (TypingLine *subject = Page().Subject(row))
        subject->SetLine(std::u32string(m_test.TestLine(line)));
    const auto typed = m_test.InputLine(line);
    std::u32string shown(typed);
    std::vector<TypingLine::Look> looks;
    looks.reserve(typed.size());
    QString unit;
    for (int position = 0; position < static_cast<int>(typed.size()); ++position)
        looks.push_back(LookOf(m_test.IsRightKey(unit, position, line)));
    if (Page().Mode() == DisplayMode::TypedOver) {
        const auto text = m_test.TestLine(line);
        if (shown.size() < text.size())
            shown += text.substr(shown.size());
    }
    Page().Input(row)->SetLine(std::move(shown), std::move(looks));
}

bool frmTest::ShowTyped(int row)
{
    const int position = m_test.m_nCurCol - 1;
    int line = -1;
    QString unit;
    const KeyMark mark = m_test.IsRightKey(unit, position, line);
    const auto character = m_test.InputLine(line)[static_cast<std::size_t>(position)];
    Page().Input(row)->SetCharacter(position, character, LookOf(mark));
    return mark == KeyMark::KeyWrong;
}

void frmTest::ShowTakenBack(int row)
{
    const int position = m_test.m_nCurCol;
    if (Page().Mode() == DisplayMode::TypedOver) {
        const auto character = m_test.TestLine(m_test.CurrentLine())[static_cast<std::size_t>(position)];
        Page().Input(row)->SetCharacter(position, character, TypingLine::Look::Untyped);
    } else {
        Page().Input(row)->Truncate(position);
    }
}

bool frmTest::IsLineComplete() const
{
    return m_test.IsLineDone();
}

void frmTest::ShowFigures()
{
    Public_Function::ShowRateText(labVeracity, m_test.GetRightRate());
    Public_Function::ShowProgress(picProgress, m_test.GetProgress());
}

bool frmTest::IsOverTime() const
{
    return IsTestRunning() && CurrentSource() == Source::Screen && Shared().OverType == 1 &&
           m_test.GetTime() > Shared().LimitTime * 60.0;
}

void frmTest::OnTab(Source source)
{
    AbortTest();
    if (source == Source::Screen) {
        Shared().TestSource = 0;
        ShowSource();
        BuildPage();
        LoadTest();
    } else if (source == Source::Printed) {
        Shared().TestSource = 1;
        Shared().TestDisplayMode[1] = 4;
        GiveWayTo([this] { Leader().OpenFreeTyping(this); });
    }
}

void frmTest::SelectLesson()
{
    DlgSelLsn dialog(CurrentFile(), this);
    const QPointer<frmTest> self(this);
    const int answer = dialog.exec();
    if (!self || IsClosed())
        return;
    FocusTypingBox();
    if (answer != QDialog::Accepted)
        return;
    AbortTest();
    CurrentFile() = dialog.ChosenFile();
    LoadTest();
}

void frmTest::ChangeSettings()
{
    Public_Define &values = Shared();
    int &mode = values.TestDisplayMode[static_cast<std::size_t>(std::clamp(values.TestSource, 0, 2))];
    DlgTestSetting dialog(this);
    dialog.SetNewLine(values.NewLine);
    if (CurrentSource() == Source::Screen) {
        dialog.SetDisplayMode(std::min(static_cast<int>(Mode()), 2));
        dialog.SetEndOption(values.OverType, values.LimitTime);
    }
    dialog.SetKeySound(IsKeySoundOn());
    const QPointer<frmTest> self(this);
    dialog.exec();
    if (!self || IsClosed())
        return;
    FocusTypingBox();
    if (!dialog.ReturnValue())
        return;

    SetKeySound(dialog.KeySound());
    values.NewLine = dialog.NewLine();
    mode = dialog.DisplayMode().value_or(mode);
    if (Page().Mode() != Mode()) {
        BuildPage();
        DrawPage(); // what is loaded stays where the text is not to be had any more
    }
    if (!TakeTimeLimit(dialog))
        return;
    if (!IsTestRunning()) {
        LoadTest();
        return;
    }
    ShowFigures();
    ApplyNewLine();
}

bool frmTest::TakeTimeLimit(const DlgTestSetting &dialog)
{
    Public_Define &values = Shared();
    int overType = values.OverType;
    int limit = values.LimitTime;
    if (dialog.EndOption() == 0) {
        overType = 0;
    } else if (dialog.EndOption() == 1 && dialog.Minutes()) {
        overType = 1;
        limit = *dialog.Minutes();
    }
    if (overType == values.OverType && limit == values.LimitTime)
        return true;
    const bool retest = IsTestRunning();
    if (retest) {
        const QPointer<frmTest> self(this);
        const qint16 answer =
            Public_Function::ShowMessage(u"You changed the setting, would you like to retest?"_s,
                                         u"Quorvex"_s, MessageIcon::Question, MessageButtons::YesNo);
        if (!self || IsClosed())
            return false;
        FocusTypingBox();
        if (answer != Public_Function::MessageYes)
            return true;
    }
    values.OverType = overType;
    values.LimitTime = static_cast<qint16>(limit);
    if (retest)
        LoadTest();
    return !retest;
}
