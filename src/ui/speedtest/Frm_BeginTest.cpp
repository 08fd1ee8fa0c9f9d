#include "ui/speedtest/Frm_BeginTest.h"

#include "core/drills/DrillFigures.h"
#include "core/engine/SoundEffects.h"
#include "core/shell/SettingFile.h"
#include "core/shell/UserSettings.h"
#include "core/speedtest/PlacementTexts.h"
#include "platform/Services.h"
#include "ui/drills/ArticleLayout.h"
#include "ui/shell/ShowMessage.h"
#include "ui/shell/StartProgram.h"
#include "ui/skin/StatusTexts.h"
#include "ui/skin/WindowFrame.h"
#include "ui/speedtest/DlgUr_BeginTestResult.h"
#include "ui/widgets/PaintNow.h"
#include "ui/widgets/ProgressBox.h"
#include "ui/widgets/SkinButton.h"
#include "ui/widgets/TypingBox.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QTimer>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char32_t backspace = 8;
constexpr char32_t enter = 13;

} // namespace

Frm_BeginTest::Frm_BeginTest(Navigator &navigator, QWidget *owner)
    : PracticeWindow({u"Frm_BeginTest"_s, u"Timer1"_s, u"labPromptMsg"_s}, u"Typing Speed Test"_s, navigator,
                     owner)
    , m_clock(*PlatformServices().clock)
    , m_page(this)
    , m_typingBox(new TypingBox(u"InputRTB"_s, this))
    , XBtn_Finish(AddButton(u"XBtn_Finish"_s, tr("&Finish the test"), u"BTN_FINISH"_s))
{
    connect(m_typingBox, &TypingBox::CharacterTyped, this,
            [this](const QString &unit) { TypeCharacter(unit.toStdU32String().front()); });
    connect(m_typingBox, &TypingBox::BackspacePressed, this, [this] { TypeCharacter(backspace); });
    connect(m_typingBox, &TypingBox::EnterPressed, this, [this] { TypeCharacter(enter); });
    connect(XBtn_Finish, &SkinButton::clicked, this, &Frm_BeginTest::Finish);
}

Frm_BeginTest::~Frm_BeginTest()
{
    // Losing the focus, it is still told what the input method was composing.
    m_typingBox->disconnect(this);
}

int Frm_BeginTest::SkinKind() const
{
    return Public_Function::PlacementTestKind;
}

void Frm_BeginTest::ShowTest(bool bEnglish)
{
    FindLayout();
    PlaceFrame(ArticleLayout::narrowPanelTop, ArticleLayout::widePanelTop);
    XBtn_Finish->move(Layout().origin + Layout().Pick(QPoint(530, 515), QPoint(702, 655)));
    m_page.Build(DisplayForm::PageAndInput, Layout());
    m_typingBox->setFont(m_page.TextFont());
    m_typingBox->raise();
    ShowOverScreen();
    m_typingBox->setFocus();
    BeforeHandTest_Start(bEnglish);
}

void Frm_BeginTest::BeforeHandTest_Start(bool bEnglish)
{
    m_bEnglish = bEnglish;
    m_paused = false;
    m_finished = false;
    m_speed = 0;
    m_rate = 0;
    m_clock.Reset();
    StatusTimer->stop();
    const SettingFile settings(Public_Function::SettingFilePath());
    m_sound = settings.Integer(u"Main"_s, bEnglish ? u"EnSound"_s : u"ChSound"_s, 0) != 0;
    ShowLessonTitle(bEnglish ? u"Test for English-typing speed"_s : u"Test for Chinease-typing speed"_s);
    if (!LoadText()) {
        // Only when the event loop runs again: whoever opens this window has finished doing so then.
        m_finished = true;
        QTimer::singleShot(0, this, [this] {
            Public_Function::ShowMessage(
                u"There is no test data, data restoration, or re-installe Quorvex."_s, u"Quorvex"_s,
                MessageIcon::Information, MessageButtons::Ok);
            close();
        });
        return;
    }
    m_page.ShowAll(m_session.Page());
    ShowTypingPlace();
    Public_Function::ShowProgress(picProgress, 0);
    Public_Function::ShowTimeText(labTime, 0);
    Public_Function::ShowSpeedText(labSpeed, u"0"_s, false);
    Public_Function::ShowRateText(labVeracity, 0);
    ShowHint(tr("Input by the current key suggested"));
    m_typingBox->setFocus();
}

bool Frm_BeginTest::LoadText()
{
    const auto language = m_bEnglish ? TestMaterial::Language::English : TestMaterial::Language::Chinese;
    QStringList files = PlacementTexts::Candidates(language);
    while (!files.isEmpty()) {
        const QString file = files.takeAt(PlacementTexts::Choose(files.size(), language));
        Article article;
        // A file that is damaged, or has no word in it, is no text.
        if (!article.InitArticleData(file, m_bEnglish ? Article::Cut::Words : Article::Cut::Characters))
            continue;
        m_session.Begin(std::move(article), m_page.Measure());
        return true;
    }
    return false;
}

void Frm_BeginTest::ShowTypingPlace()
{
    const QRect area = m_page.TypingArea(m_session.Page());
    const QRect box =
        ArticleLayout::Box(DisplayForm::PageAndInput, 1, Layout().IsWide()).translated(Layout().origin);
    if (!area.isNull())
        m_typingBox->PlaceAt(area, box.right(), TypingBox::Composition::InLine);
}

void Frm_BeginTest::TypeCharacter(char32_t typed)
{
    if (m_paused || m_finished)
        return;
    using Outcome = PlacementSession::Outcome;
    const int line = m_session.Page().CurrentLine();
    const int column = m_session.Page().Column();
    const Outcome outcome = m_session.TypeCharacter(typed);
    if (outcome.kind == Outcome::Kind::Ignored)
        return;
    m_clock.Start();
    StatusTimer->start();
    if (outcome.then == Outcome::Then::SamePage)
        m_page.ShowStep(m_session.Page(), line, column);
    else
        m_page.ShowAll(m_session.Page());
    ShowTypingPlace();
    Public_Function::PaintNow(this);
    if (m_sound && outcome.kind != Outcome::Kind::TakenBack)
        Public_Function::PlayEffect(outcome.kind == Outcome::Kind::Right ? u"Type.WAV"_s : u"Error.wav"_s);
    if (outcome.then == Outcome::Then::ArticleDone)
        Finish();
}

void Frm_BeginTest::Pause()
{
    m_paused = true;
    m_clock.Pause();
    StatusTimer->stop();
    m_typingBox->CancelComposition();
    ShowHint(u"Suspended by PAUSE/BREAK"_s);
}

void Frm_BeginTest::Resume()
{
    m_paused = false;
    m_clock.Start();
    StatusTimer->start();
    ShowHint(tr("Input by the current key suggested"));
}

void Frm_BeginTest::UpdateStatus()
{
    const int words = m_session.WordsTyped();
    const int seconds = m_clock.WholeSeconds();
    m_speed = DrillFigures::PerMinute(words, seconds);
    m_rate = DrillFigures::RatePercent(m_session.RightCharacters(), m_session.JudgedCharacters()).value_or(0);
    const int progress = DrillFigures::ProgressPercent(words, m_session.TotalWords()).value_or(0);
    Public_Function::ShowProgress(picProgress, std::min(progress, 100));
    Public_Function::ShowSpeedText(labSpeed, QString::number(m_speed), false);
    Public_Function::ShowTimeText(labTime, static_cast<float>(seconds));
    Public_Function::ShowRateText(labVeracity, m_rate);
}

void Frm_BeginTest::Finish()
{
    if (m_finished)
        return;
    m_finished = true;
    m_clock.Pause();
    StatusTimer->stop();
    m_typingBox->CancelComposition();
    UpdateStatus();
    DlgUr_BeginTestResult dialog(m_bEnglish, this);
    dialog.SetSpeed_Veracity(static_cast<float>(m_speed), static_cast<float>(m_rate));
    const QPointer<Frm_BeginTest> self(this);
    dialog.exec();
    if (!self)
        return;
    switch (dialog.RtnVal()) {
    case DlgUr_BeginTestResult::Choice::Accept:
        Accept(dialog.Level());
        break;
    case DlgUr_BeginTestResult::Choice::Again:
        BeforeHandTest_Start(m_bEnglish);
        break;
    case DlgUr_BeginTestResult::Choice::Home:
        close();
        break;
    }
}

/// Opens what the level suggests, in place of this window.
void Frm_BeginTest::Accept(int level)
{
    const auto openDrill = [this](DrillKind kind) {
        m_replaced = true;
        Leader().OpenDrill(kind, this);
    };
    switch (level) {
    case 1:
        return openDrill(DrillKind::KeyJunior);
    case 2:
        return openDrill(DrillKind::Word);
    case 3:
        return openDrill(DrillKind::Article);
    case 11:
        close();
        return Public_Function::StartShippedProgram(u"game\\Rabbit.exe"_s);
    case 12:
    case 13:
        close();
        return Public_Function::StartShippedProgram(u"game\\Missile.exe"_s);
    default:
        close();
    }
}

void Frm_BeginTest::OnMinimize()
{
    if (m_clock.IsRunning())
        Pause();
    MinimizeProgram();
}

void Frm_BeginTest::keyPressEvent(QKeyEvent *event)
{
    event->accept();
    if (Public_Function::IsCloseKey(event)) {
        close();
    } else if (event->key() == Qt::Key_F1) {
        Leader().ShowHelp(this);
    } else if (event->key() == Qt::Key_Pause && !event->isAutoRepeat() && !m_finished) {
        if (m_paused)
            Resume();
        else if (m_clock.IsRunning())
            Pause();
    }
}

bool Frm_BeginTest::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate)
        m_typingBox->setFocus();
    return PracticeWindow::event(event);
}

void Frm_BeginTest::closeEvent(QCloseEvent *event)
{
    m_finished = true;
    StatusTimer->stop();
    if (!m_replaced)
        Leader().ShowMainMenu();
    event->accept();
}
