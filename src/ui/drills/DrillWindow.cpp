#include "ui/drills/DrillWindow.h"

#include "core/drills/DrillFigures.h"
#include "platform/Services.h"
#include "ui/shell/ShowMessage.h"
#include "ui/skin/StatusTexts.h"
#include "ui/skin/WindowFrame.h"
#include "ui/widgets/ProgressBox.h"
#include "ui/widgets/SkinButton.h"
#include "ui/widgets/TabRegion.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QTimer>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array<DrillKind, 4> TabKinds{DrillKind::KeyJunior, DrillKind::KeySenior, DrillKind::Word,
                                            DrillKind::Article};

/// Corner columns of each tab from its upper left one round to its left middle, as the skin draws them.
using TabColumns = std::array<int, 6>;
constexpr std::array<TabColumns, 4> NarrowTabs{{{0, 176, 182, 188, 0, 0},
                                                {188, 366, 372, 378, 188, 182},
                                                {378, 548, 554, 560, 378, 372},
                                                {560, 734, 740, 746, 560, 554}}};
constexpr std::array<TabColumns, 4> WideTabs{{{0, 370, 390, 410, 0, 0},
                                              {410, 575, 590, 600, 410, 410},
                                              {600, 760, 780, 790, 600, 600},
                                              {790, 950, 965, 980, 790, 790}}};

QPolygon TabPolygon(int tab, const DrillLayout &layout)
{
    const TabColumns x = layout.Pick(NarrowTabs, WideTabs)[static_cast<std::size_t>(tab)];
    const int middle = layout.Pick(15, 20);
    const int bottom = layout.Pick(30, 40);
    const QPolygon corners({QPoint(x[0], 0), QPoint(x[1], 0), QPoint(x[2], middle), QPoint(x[3], bottom),
                            QPoint(x[4], bottom), QPoint(x[5], middle)});
    return corners.translated(layout.origin);
}

} // namespace

DrillWindow::DrillWindow(const DrillFacts &facts, Navigator &navigator, QWidget *owner)
    : PracticeWindow({facts.objectName, u"Timer1"_s, u"labPromptMsg"_s}, facts.title, navigator, owner)
    , m_facts(facts)
    , m_clock(*PlatformServices().clock)
{
    setFocusPolicy(Qt::StrongFocus);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &DrillWindow::StoreOnce);
    // The system may ask every program to save and then stay up after all: the drill goes on then, and is
    // stored once more when it is left.
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, [this] {
        if (!m_stored)
            SaveTrainData();
    });
}

void DrillWindow::ShowDrill()
{
    FindLayout();
    if (Layout().mode != LayoutMode::None)
        InitLayout();
    ShowOverScreen();
    setFocus();
    LoadTrainData();
}

void DrillWindow::OnMinimize()
{
    PauseClock();
    MinimizeProgram();
}

SkinButton *DrillWindow::AddRowButton(const QString &objectName, const QString &name, const QString &bitmap,
                                      int narrowLeft, int wideLeft)
{
    SkinButton *button = AddButton(objectName, name, bitmap);
    button->move(Layout().origin + QPoint(Layout().Pick(narrowLeft, wideLeft), Layout().Pick(38, 55)));
    return button;
}

void DrillWindow::InitLayout()
{
    PlaceFrame(m_facts.narrowPanelTop, m_facts.widePanelTop);
    labSpeed->setText(Counts().unitsAreKeys ? u"00KPM"_s : u"00WPM"_s);
    ShowHint(tr("Input by the current key suggested"));
    PlaceTabs();
}

void DrillWindow::PlaceTabs()
{
    const std::array<QString, 4> names{tr("Key drill (junior)"), tr("Key drill (senior)"), tr("Word drill"),
                                       tr("Text drill")};
    for (int tab = 0; tab < static_cast<int>(TabKinds.size()); ++tab) {
        const auto index = static_cast<std::size_t>(tab);
        auto *region = new TabRegion(u"DrillTab"_s + QString::number(tab), names[index],
                                     TabPolygon(tab, Layout()), this);
        region->SetNumber(tab + 1);
        region->SetOwn(tab == m_facts.tab);
        if (tab != m_facts.tab)
            connect(region, &TabRegion::clicked, this, [this, index] { LeaveFor(TabKinds[index]); });
    }
}

void DrillWindow::StartClock()
{
    m_clock.Start();
    StatusTimer->start();
}

void DrillWindow::PauseClock()
{
    m_clock.Pause();
    StatusTimer->stop();
}

void DrillWindow::UpdateStatus(bool reset)
{
    const DrillCounts counts = Counts();
    if (const auto percent = DrillFigures::ProgressPercent(counts.itemIndex, counts.itemCount))
        Public_Function::ShowProgress(picProgress, *percent);
    if (reset) {
        Public_Function::ShowSpeedText(labSpeed, u"0"_s, counts.unitsAreKeys);
        Public_Function::ShowTimeText(labTime, 0);
        Public_Function::ShowRateText(labVeracity, 0);
        return;
    }
    const int seconds = m_clock.WholeSeconds();
    const int speed = DrillFigures::PerMinute(counts.units, seconds);
    Public_Function::ShowSpeedText(labSpeed, QString::number(speed), counts.unitsAreKeys);
    Public_Function::ShowTimeText(labTime, static_cast<float>(seconds));
    if (const auto rate = DrillFigures::RatePercent(counts.correctKeys, counts.totalKeys))
        Public_Function::ShowRateText(labVeracity, *rate);
}

QString DrillWindow::CompletionQuestion() const
{
    return u"You have been completed the courses you selected\nContinued to practice other courses?"_s;
}

void DrillWindow::CompleteLesson()
{
    PauseClock();
    ForgetKeys();
    Public_Function::ShowProgress(picProgress, 100);
    const QPointer<DrillWindow> self(this);
    const qint16 answer = Public_Function::ShowMessage(CompletionQuestion(), u"Quorvex"_s,
                                                       MessageIcon::Question, MessageButtons::YesNo);
    if (!self)
        return;
    if (answer == Public_Function::MessageYes) {
        OnSelectLesson();
        return;
    }
    RestartLesson();
    raise();
    activateWindow();
}

void DrillWindow::ReportLoadFailure(const QString &text)
{
    // Only when the event loop runs again, so that the window that this one replaces is gone by then.
    QTimer::singleShot(0, this, [text] {
        Public_Function::ShowMessage(text, u"Quorvex"_s, MessageIcon::Information, MessageButtons::Ok);
    });
}

void DrillWindow::OnSelectLesson()
{
    PauseClock();
    SelectLesson();
}

void DrillWindow::OnSetting()
{
    PauseClock();
    ChangeSettings();
}

void DrillWindow::LeaveFor(DrillKind kind)
{
    StoreOnce();
    Leader().OpenDrill(kind, this);
}

void DrillWindow::StoreOnce()
{
    if (std::exchange(m_stored, true))
        return;
    SaveTrainData();
}

void DrillWindow::closeEvent(QCloseEvent *event)
{
    // Stored already: a tab or a switch button has opened the window that takes this one's place.
    if (!m_stored) {
        StoreOnce();
        Leader().ShowMainMenu();
    }
    event->accept();
}

void DrillWindow::OnActivated()
{
    if (!std::exchange(m_activated, true)) {
        UpdateStatus(true);
        return;
    }
    const DrillCounts counts = Counts();
    if (const auto percent = DrillFigures::ProgressPercent(counts.itemIndex, counts.itemCount))
        Public_Function::ShowProgress(picProgress, *percent);
}

bool DrillWindow::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate)
        OnActivated();
    else if (event->type() == QEvent::WindowDeactivate || event->type() == QEvent::FocusOut)
        ForgetKeys();
    return PracticeWindow::event(event);
}

void DrillWindow::keyPressEvent(QKeyEvent *event)
{
    event->accept();
    if (Public_Function::IsCloseKey(event))
        close();
    else if (event->key() == Qt::Key_F1)
        Leader().ShowHelp(this);
    else
        DrillKeyDown(event);
}

void DrillWindow::keyReleaseEvent(QKeyEvent *event)
{
    event->accept();
    DrillKeyUp(event);
}
