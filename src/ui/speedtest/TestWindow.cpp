#include "ui/speedtest/TestWindow.h"

#include "core/engine/SoundEffects.h"
#include "core/engine/TypingSession.h"
#include "core/shell/Public_Define.h"
#include "platform/InputMethod.h"
#include "platform/Services.h"
#include "ui/shell/ChooseFile.h"
#include "ui/skin/StatusTexts.h"
#include "ui/skin/WindowFrame.h"
#include "ui/speedtest/DlgTestResult.h"
#include "ui/widgets/PaintNow.h"
#include "ui/widgets/SkinButton.h"
#include "ui/widgets/TabRegion.h"
#include "ui/widgets/TypingBox.h"
#include "ui/widgets/TypingLine.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QPointer>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int TicksPerSample = 60; // 30 seconds

QPolygon TestTabPolygon(const TestLayout::Tab &tab, const QPoint &origin)
{
    const int bottom = TestLayout::tabHeight;
    const QPolygon corners({QPoint(tab.left, 0), QPoint(tab.rightTop, 0), QPoint(tab.rightMiddle, bottom / 2),
                            QPoint(tab.rightBottom, bottom), QPoint(tab.left, bottom)});
    return corners.translated(origin);
}

} // namespace

TestWindow::TestWindow(const QString &objectName, Navigator &navigator, std::unique_ptr<TypingSession> engine,
                       QWidget *owner)
    : PracticeWindow({objectName, u"tmrTime"_s, u"lblMsg"_s}, {}, navigator, owner)
    , m_engine(std::move(engine))
    , m_page(this)
    , rtfCursor(new TypingBox(u"rtfCursor"_s, this))
    , BtnPause(AddButton(u"BtnPause"_s, tr("&Pause"), u"BTN_PAUSE"_s))
    , BtnOver(AddButton(u"BtnOver"_s, tr("&Finish"), u"BTN_FINISH"_s))
    , BtnStop(AddButton(u"BtnStop"_s, tr("&End the test"), u"BTN_FINISHTEST"_s))
    , BtnSave(AddButton(u"BtnSave"_s, tr("S&ave what you typed"), u"BTN_SAVE"_s))
    , BtnScore(AddButton(u"BtnScore"_s, tr("&Top list"), u"BTN_SCORE"_s))
    , BtnSetting(AddButton(u"BtnSetting"_s, tr("&Settings"), u"BTN_OPERATION"_s))
    , BtnSelectLesson(AddButton(u"BtnSelectLesson"_s, tr("Select a &lesson"), u"BTN_SELECTLESSON"_s))
{
    setFocusProxy(rtfCursor);
    connect(rtfCursor, &TypingBox::CharacterTyped, this, &TestWindow::OnTyped);
    connect(rtfCursor, &TypingBox::KeyPressed, this, &TestWindow::OnKeyPressed);
    connect(rtfCursor, &TypingBox::BackspacePressed, this, &TestWindow::OnBackspace);
    connect(rtfCursor, &TypingBox::EnterReleased, this, &TestWindow::OnEnter);
    connect(rtfCursor, &TypingBox::SpaceReleased, this, &TestWindow::OnSpace);
    connect(rtfCursor, &TypingBox::FocusChanged, this, [this](bool focused) {
        if (focused)
            PlatformServices().inputMethod->Refresh();
        if (m_nTestState != TestState::Idle)
            ShowPosition(); // the caret comes and goes with the focus
    });
    connect(BtnOver, &SkinButton::clicked, this, &TestWindow::FinishTest);
    connect(BtnStop, &SkinButton::clicked, this, &TestWindow::FinishTest);
    connect(BtnPause, &SkinButton::clicked, this, &TestWindow::PauseTest);
    connect(BtnSave, &SkinButton::clicked, this, &TestWindow::OnSave);
    connect(BtnScore, &SkinButton::clicked, this, &TestWindow::OnScore);
    connect(BtnSetting, &SkinButton::clicked, this, [this] { ChangeSettings(); });
    connect(BtnSelectLesson, &SkinButton::clicked, this, [this] { SelectLesson(); });
    // Nothing that was typed is lost when the program or the session ends.
    const auto storeRunning = [this] {
        if (IsTestRunning())
            AbortTest();
    };
    connect(qApp, &QCoreApplication::aboutToQuit, this, storeRunning);
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, storeRunning);
}

TestWindow::~TestWindow()
{
    // Losing the focus, it is still told what the input method was composing.
    rtfCursor->disconnect(this);
}

void TestWindow::ShowTest()
{
    FindLayout();
    PlaceControls();
    EnablePrintedButtons(false);
    ShowSource();
    BuildPage();
    Public_Function::ShowTimeText(labTime, 0);
    Public_Function::ShowSpeedText(labSpeed, u"0"_s, m_engine->m_bEnglish);
    SetState(TestState::Idle);
    ShowOverScreen();
    FocusTypingBox();
    Load();
}

void TestWindow::GiveWayTo(const std::function<void()> &open)
{
    m_replaced = true;
    open();
}

void TestWindow::PlaceControls()
{
    PlaceFrame(TestLayout::panelTop, TestLayout::panelTop);
    const QPoint origin = Layout().origin;
    labLessonMsg->setGeometry(TestLayout::lessonCaption.translated(origin));
    labHint->setGeometry(TestLayout::hint.translated(origin));
    labHint->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    labSpeed->setGeometry(labSpeed->geometry().adjusted(-14, 0, 14, 0)); // a committed phrase is fast
    const std::pair<SkinButton *, QPoint> places[] = {
        {BtnSelectLesson, TestLayout::selectLessonButton},
        {BtnSetting, TestLayout::settingButton},
        {BtnScore, TestLayout::scoreButton},
        {BtnPause, TestLayout::pauseButton},
        {BtnSave, TestLayout::saveButton},
        {BtnStop, TestLayout::stopButton},
        {BtnOver, TestLayout::overButton},
        {BtnReturn, TestLayout::returnButton},
    };
    for (const auto &[button, place] : places)
        button->move(origin + place);
    PlaceTabs();
}

void TestWindow::PlaceTabs()
{
    const std::array<QString, 3> names{tr("Screen Text"), tr("Printed Text"), tr("Simultaneous Input")};
    for (std::size_t tab = 0; tab < m_tabs.size(); ++tab) {
        m_tabs[tab] = new TabRegion(u"TestTab"_s + QString::number(tab), names[tab],
                                    TestTabPolygon(TestLayout::tabs[tab], Layout().origin), this);
        m_tabs[tab]->SetNumber(static_cast<int>(tab) + 1);
        const auto source = static_cast<Source>(tab);
        connect(m_tabs[tab], &TabRegion::clicked, this, [this, source] {
            if (source != CurrentSource())
                OnTab(source);
        });
    }
}

void TestWindow::FocusTypingBox()
{
    rtfCursor->setFocus();
}

TestWindow::Source TestWindow::CurrentSource()
{
    const int source = Shared().TestSource;
    return source == 0 ? Source::Screen : source == 1 ? Source::Printed : Source::Simultaneous;
}

QString TestWindow::GetModeName()
{
    switch (CurrentSource()) {
    case Source::Screen:
        return u"Screen Text"_s;
    case Source::Printed:
        return u"Printed Text"_s;
    case Source::Simultaneous:
        break;
    }
    return u"Simultaneous Input"_s;
}

int TestWindow::SkinKind() const
{
    constexpr int screenKind = 17;
    constexpr int printedKind = 20;
    constexpr int simultaneousKind = 21;
    const int picture = std::min(static_cast<int>(m_page.Mode()), 2);
    switch (CurrentSource()) {
    case Source::Screen:
        return screenKind + picture;
    case Source::Printed:
        return printedKind;
    case Source::Simultaneous:
        break;
    }
    return simultaneousKind + picture;
}

void TestWindow::ShowSource()
{
    SetTitle(u"Speed Test \\ "_s + GetModeName());
    for (std::size_t tab = 0; tab < m_tabs.size(); ++tab)
        m_tabs[tab]->SetOwn(static_cast<Source>(tab) == CurrentSource());
    RepaintGround();
}

void TestWindow::BuildPage()
{
    m_page.Build(Mode(), Layout().origin);
    rtfCursor->setFont(m_page.Input(0)->font());
    rtfCursor->raise();
    FollowEngine();
    RepaintGround();
}

void TestWindow::FollowEngine()
{
    const int line = m_engine->CurrentLine();
    m_nPage = (line - 1) / m_page.Rows() + 1;
    m_nRow = (line - 1) % m_page.Rows() + 1;
}

void TestWindow::DrawPage()
{
    for (int row = 0; row < m_page.Rows(); ++row)
        FillRow(row, (m_nPage - 1) * m_page.Rows() + row + 1);
    ShowPosition();
}

void TestWindow::ShowPosition()
{
    m_page.ShowPosition(m_nRow - 1, m_engine->m_nCurCol, rtfCursor);
}

void TestWindow::MakeReady()
{
    StopTimer();
    EnablePrintedButtons(false);
    m_nTicks = 0;
    SetState(TestState::Ready);
    FollowEngine();
    DrawPage();
    UpdateStatus();
}

void TestWindow::SetState(TestState state)
{
    m_nTestState = state;
    switch (state) {
    case TestState::Idle:
        ShowHint(tr("No test is running. Select a lesson to begin another one."));
        m_page.HidePosition();
        break;
    case TestState::Ready:
        ShowHint(tr("Type the first character to start"));
        break;
    case TestState::Running:
        ShowHint(tr("Press Pause to stop the clock"));
        break;
    case TestState::Paused:
        ShowHint(m_nSavedState == TestState::WaitEnter ? tr("Paused. Press Enter to go on")
                                                       : tr("Paused. Go on by typing"));
        break;
    case TestState::WaitEnter:
        ShowHint(tr("Press Enter to go on"));
        break;
    case TestState::WaitSpace:
        ShowHint(tr("Press Space to go on"));
        break;
    }
}

void TestWindow::EnablePrintedButtons(bool running)
{
    const bool enabled = running && CurrentSource() == Source::Printed;
    BtnPause->setEnabled(enabled);
    BtnStop->setEnabled(enabled);
    BtnSave->setEnabled(enabled);
}

bool TestWindow::IsKeySoundOn() const
{
    return (m_engine->m_bEnglish ? Shared().EnSound : Shared().ChSound) != 0;
}

void TestWindow::SetKeySound(bool on)
{
    int &sound = m_engine->m_bEnglish ? Shared().EnSound : Shared().ChSound;
    if (on != (sound != 0))
        sound = on ? 1 : 0;
}

void TestWindow::OnTyped(const QString &unit)
{
    if (m_nTestState == TestState::Ready)
        StartTest();
    else if (m_nTestState == TestState::Paused)
        ResumeTest();
    if (m_nTestState == TestState::Running)
        Judge(unit);
}

void TestWindow::Judge(const QString &unit)
{
    m_engine->CheckString(unit);
    const bool wrong = ShowTyped(m_nRow - 1);
    ShowPosition();
    Public_Function::PaintNow(this);
    if (IsKeySoundOn())
        Public_Function::PlayEffect(wrong ? u"Error.wav"_s : u"Type.WAV"_s);
    if (IsLineComplete())
        EndLine();
}

void TestWindow::EndLine()
{
    switch (Shared().NewLine) {
    case 1:
        SetState(TestState::WaitEnter);
        break;
    case 2:
        SetState(TestState::WaitSpace);
        break;
    default:
        NextLine();
    }
}

void TestWindow::NextLine()
{
    do {
        if (!m_engine->SetNextLine()) {
            if (m_nTestState == TestState::Paused)
                ResumeTest(); // a pause that is over does not count
            FinishTest();
            return;
        }
    } while (IsLineComplete()); // nothing can be typed on an empty line
    m_nSavedState = TestState::Running;
    if (m_nTestState != TestState::Running)
        SetState(m_nTestState == TestState::Paused ? TestState::Paused : TestState::Running);
    const int page = m_nPage;
    m_page.HidePosition();
    FollowEngine();
    if (m_nPage != page)
        DrawPage();
    else
        ShowPosition();
}

void TestWindow::OnKeyPressed()
{
    if (Shared().ChSound != 0 && !m_engine->m_bEnglish)
        Public_Function::PlayEffect(u"Type.WAV"_s);
}

void TestWindow::OnEnter()
{
    if (m_nTestState == TestState::Paused && m_nSavedState == TestState::WaitEnter)
        ResumeTest();
    if (m_nTestState == TestState::WaitEnter)
        NextLine();
}

void TestWindow::OnSpace()
{
    if (m_nTestState == TestState::WaitSpace)
        NextLine();
}

void TestWindow::OnBackspace()
{
    if (!IsTestRunning())
        return;
    const int line = m_engine->CurrentLine();
    if (line == 1 && m_engine->m_nCurCol == 0)
        return;
    m_engine->BackSpace();
    const int page = m_nPage;
    if (m_engine->CurrentLine() != line) {
        m_page.HidePosition();
        FollowEngine();
    }
    if (m_nPage != page) {
        DrawPage();
    } else {
        ShowTakenBack(m_nRow - 1);
        ShowPosition();
    }
    Public_Function::PaintNow(this);
    // There is something to type on the line again.
    if (m_nTestState == TestState::Paused)
        m_nSavedState = TestState::Running;
    else
        SetState(TestState::Running);
}

void TestWindow::StartTest()
{
    SetState(TestState::Running);
    EnablePrintedButtons(true);
    m_nTicks = 0;
    m_engine->StartType();
    StatusTimer->start();
}

void TestWindow::PauseTest()
{
    if (!IsTestRunning() || !StatusTimer->isActive())
        return;
    StopTimer();
    m_nSavedState = m_nTestState;
    SetState(TestState::Paused);
    m_engine->PauseType();
}

void TestWindow::ResumeTest()
{
    StatusTimer->start();
    SetState(m_nSavedState);
    m_engine->PauseType();
}

void TestWindow::ApplyNewLine()
{
    TestState &state = m_nTestState == TestState::Paused ? m_nSavedState : m_nTestState;
    if (state != TestState::WaitEnter && state != TestState::WaitSpace)
        return;
    if (Shared().NewLine == 1 || Shared().NewLine == 2) {
        state = Shared().NewLine == 1 ? TestState::WaitEnter : TestState::WaitSpace;
        SetState(m_nTestState);
    } else {
        NextLine();
    }
}

void TestWindow::StopTimer()
{
    StatusTimer->stop();
}

void TestWindow::UpdateStatus()
{
    const bool started = IsTestRunning();
    Public_Function::ShowTimeText(labTime, started ? static_cast<float>(m_engine->GetTime()) : 0.0F);
    Public_Function::ShowSpeedText(labSpeed, QString::number(started ? m_engine->GetAveSpeed() : 0),
                                   m_engine->m_bEnglish);
    ShowFigures();
}

void TestWindow::CountTick()
{
    if (++m_nTicks < TicksPerSample)
        return;
    m_engine->CalTypeSpeed();
    m_nTicks = 0;
}

void TestWindow::OnTimer()
{
    UpdateStatus();
    CountTick();
    // Not under an open dialog: the result would cover what the person is doing there.
    if (IsOverTime() && !QApplication::activeModalWidget())
        FinishTest();
}

void TestWindow::FinishTest()
{
    if (!IsTestRunning())
        return;
    UpdateStatus();
    CountTick();
    SetState(TestState::Idle);
    StopTimer();
    EnablePrintedButtons(false);
    m_engine->StopType();
    m_engine->SaveData(GetModeName());
    const QString imeName = Public_Function::GetImeName();
    rtfCursor->CancelComposition();

    DlgTestResult dialog(this);
    dialog.CalChartData(m_engine.get(), imeName);
    dialog.SelectChart(0);
    const QPointer<TestWindow> self(this);
    dialog.exec();
    if (!self || IsClosed())
        return;
    m_engine->Clear();
    FocusTypingBox();
}

void TestWindow::AbortTest()
{
    if (IsTestRunning()) {
        StopTimer();
        SetState(TestState::Idle);
        EnablePrintedButtons(false);
        m_engine->StopType();
        m_engine->SaveData(GetModeName());
    }
    SetState(TestState::Idle);
    if (m_engine)
        m_engine->Clear();
}

void TestWindow::OnSave()
{
    PauseTest();
    const QPointer<TestWindow> self(this);
    const QString path = Public_Function::ChooseTextFile(Public_Function::FilePurpose::Save, this);
    if (!self || IsClosed())
        return;
    if (!path.isEmpty())
        m_engine->SaveInput(path);
    FocusTypingBox();
}

void TestWindow::OnScore()
{
    PauseTest();
    const QPointer<TestWindow> self(this);
    Leader().ShowTopList(this);
    if (self)
        FocusTypingBox();
}

void TestWindow::keyPressEvent(QKeyEvent *event)
{
    event->accept();
    if (Public_Function::IsCloseKey(event))
        close();
    else if (event->key() == Qt::Key_F1)
        Leader().ShowHelp(this);
    else if (event->key() == Qt::Key_Pause)
        PauseTest();
}

void TestWindow::closeEvent(QCloseEvent *event)
{
    event->accept();
    if (!m_engine)
        return;
    AbortTest();
    rtfCursor->disconnect(this);
    m_engine.reset(); // stores the settings before anybody else reads them
    if (!m_replaced)
        Leader().ShowMainMenu();
}
