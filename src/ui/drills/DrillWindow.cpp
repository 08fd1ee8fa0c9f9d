#include "ui/drills/DrillWindow.h"

#include "core/drills/DrillFigures.h"
#include "core/shell/Public_Define.h"
#include "platform/Services.h"
#include "ui/drills/DrillTab.h"
#include "ui/shell/ShowMessage.h"
#include "ui/skin/Fonts.h"
#include "ui/skin/SkinLibrary.h"
#include "ui/skin/StatusTexts.h"
#include "ui/skin/WindowFrame.h"
#include "ui/widgets/ProgressBox.h"
#include "ui/widgets/SkinButton.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QTimer>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int StatusInterval = 500; // milliseconds
constexpr int TitleZone = 40;       // the title is printed above this line

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
    : QDialog(owner, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint)
    , m_facts(facts)
    , m_navigator(navigator)
    , m_title(facts.title)
    , m_clock(*PlatformServices().clock)
    , Timer1(new QTimer(this))
    , BtnHelp(AddButton(u"BtnHelp"_s, tr("Help"), u"BTN_HELP"_s))
    , btnMiniMize(AddButton(u"btnMiniMize"_s, tr("Minimize"), u"BTN_MIN"_s))
    , BtnClose(AddButton(u"BtnClose"_s, tr("Close"), u"BTN_CLOSE"_s))
    , BtnReturn(AddButton(u"BtnReturn"_s, tr("Back to the menu"), u"BTN_BACK"_s))
    , labLessonMsg(AddLabel(u"labLessonMsg"_s, {}))
    , labTime(AddLabel(u"labTime"_s, tr("Time")))
    , labSpeed(AddLabel(u"labSpeed"_s, tr("Speed")))
    , labVeracity(AddLabel(u"labVeracity"_s, tr("Correct rate")))
    , labPromptMsg(AddLabel(u"labPromptMsg"_s, {}))
    , picProgress(new ProgressBox(this))
{
    setObjectName(facts.objectName);
    setWindowTitle(facts.title);
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);

    Timer1->setObjectName(u"Timer1"_s);
    Timer1->setInterval(StatusInterval);
    connect(Timer1, &QTimer::timeout, this, [this] { UpdateStatus(false); });
    connect(BtnClose, &SkinButton::clicked, this, &QWidget::close);
    connect(BtnReturn, &SkinButton::clicked, this, &QWidget::close);
    connect(BtnHelp, &SkinButton::clicked, this, [this] { m_navigator.ShowHelp(this); });
    connect(btnMiniMize, &SkinButton::clicked, this, [this] {
        PauseClock();
        m_navigator.MinimizeAll();
    });
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
    m_layout = CalcLayoutMode(QSize(AreaWidth(), Shared().LayoutHeight()));
    if (m_layout.mode != LayoutMode::None)
        InitLayout();
    Public_Function::CoverScreen(this);
    raise();
    activateWindow();
    setFocus();
    LoadTrainData();
}

int DrillWindow::AreaWidth() const
{
    return Shared().LayoutWidth();
}

QLabel *DrillWindow::AddLabel(const QString &objectName, const QString &name)
{
    auto *label = new QLabel(this);
    label->setObjectName(objectName);
    label->setAccessibleName(name);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    QPalette colors = label->palette();
    colors.setColor(QPalette::WindowText, QColor(80, 80, 80));
    label->setPalette(colors);
    return label;
}

SkinButton *DrillWindow::AddButton(const QString &objectName, const QString &name, const QString &bitmap)
{
    auto *button = new SkinButton(objectName, name, this);
    button->setFocusPolicy(Qt::NoFocus);
    button->setToolTip(name);
    button->SetButton(bitmap, SkinLibrary());
    return button;
}

SkinButton *DrillWindow::AddRowButton(const QString &objectName, const QString &name, const QString &bitmap,
                                      int narrowLeft, int wideLeft)
{
    SkinButton *button = AddButton(objectName, name, bitmap);
    button->move(m_layout.origin + QPoint(m_layout.Pick(narrowLeft, wideLeft), m_layout.Pick(38, 55)));
    return button;
}

void DrillWindow::InitLayout()
{
    PlaceButtons();
    PlaceLabels();
    PlaceStatusIcons();
    PlaceTabs();
}

void DrillWindow::PlaceButtons()
{
    const int right = AreaWidth();
    BtnHelp->move(right - m_layout.Pick(155, 150), 4);
    btnMiniMize->move(right - m_layout.Pick(105, 100), 4);
    BtnClose->move(right - m_layout.Pick(55, 50), 4);
    BtnReturn->move(m_layout.origin + m_layout.Pick(QPoint(650, 515), QPoint(830, 655)));
}

void DrillWindow::PlaceLabels()
{
    const int statusTop = m_layout.Pick(m_facts.narrowPanelTop + 10, m_facts.widePanelTop + 13);
    const QFont font = Public_Function::DisplayFont(Shared().FontSizeTable[m_layout.Pick<std::size_t>(7, 6)]);
    const auto place = [this, &font](QLabel *label, const QRect &narrow, const QRect &wide) {
        label->setGeometry(m_layout.Pick(narrow, wide).translated(m_layout.origin));
        label->setFont(font);
    };
    place(labLessonMsg, {50, 48, 370, 16}, {70, 60, 470, 22});
    place(labTime, {114, statusTop, 60, 18}, {164, statusTop, 66, 22});
    place(labSpeed, {278, statusTop, 60, 18}, {370, statusTop, 66, 22});
    place(labVeracity, {676, statusTop, 40, 18}, {830, statusTop, 66, 22});
    // The hint wraps beside the hands.
    place(labPromptMsg, {25, 518, 150, 36}, {50, 660, 142, 44});
    labPromptMsg->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    labPromptMsg->setWordWrap(true);

    labTime->setText(u"00:00:00"_s);
    labSpeed->setText(Counts().unitsAreKeys ? u"00KPM"_s : u"00WPM"_s);
    labVeracity->setText(u"00%"_s);
    labPromptMsg->setText(tr("Input by the current key suggested"));
}

void DrillWindow::PlaceStatusIcons()
{
    // The panel names each item; its icon stands in front of the name, the progress bar behind.
    const int middle = labTime->y() + labTime->height() / 2;
    const int iconTop = middle - SkinLibrary().BitmapSize(u"ICON_TIME"_s).height() / 2;
    const auto icon = [&](int narrowLeft, int wideLeft) {
        return QPoint(m_layout.origin.x() + m_layout.Pick(narrowLeft, wideLeft), iconTop);
    };
    m_anchors = {m_layout.origin, m_layout.origin + QPoint(0, m_layout.Pick(30, 40)),
                 icon(40, 64),    icon(204, 270),
                 icon(366, 476),  icon(602, 746)};
    picProgress->move(m_layout.origin.x() + m_layout.Pick(440, 572), middle - picProgress->height() / 2);
}

void DrillWindow::PlaceTabs()
{
    for (int tab = 0; tab < static_cast<int>(TabKinds.size()); ++tab) {
        const bool own = tab == m_facts.tab;
        auto *region = new DrillTab(tab, own, TabPolygon(tab, m_layout), this);
        if (own)
            continue;
        connect(region, &DrillTab::clicked, this,
                [this, tab] { LeaveFor(TabKinds[static_cast<std::size_t>(tab)]); });
    }
}

void DrillWindow::ShowLessonTitle(const QString &title)
{
    labLessonMsg->setText(
        labLessonMsg->fontMetrics().elidedText(title, Qt::ElideRight, labLessonMsg->width()));
    labLessonMsg->setToolTip(title);
}

void DrillWindow::ShowHint(const QString &text)
{
    labPromptMsg->setText(text);
}

void DrillWindow::StartClock()
{
    m_clock.Start();
    Timer1->start();
}

void DrillWindow::PauseClock()
{
    m_clock.Pause();
    Timer1->stop();
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
    if (!m_navigator.CanOpenDrill(kind))
        return;
    StoreOnce();
    m_navigator.OpenDrill(kind, this);
}

void DrillWindow::StoreOnce()
{
    if (std::exchange(m_stored, true))
        return;
    SaveTrainData();
}

void DrillWindow::reject()
{
    close();
}

void DrillWindow::closeEvent(QCloseEvent *event)
{
    // Stored already: a tab or a switch button has opened the window that takes this one's place.
    if (!m_stored) {
        StoreOnce();
        m_navigator.ShowMainMenu();
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
    return QDialog::event(event);
}

void DrillWindow::keyPressEvent(QKeyEvent *event)
{
    event->accept();
    if (Public_Function::IsCloseKey(event))
        close();
    else if (event->key() == Qt::Key_F1)
        m_navigator.ShowHelp(this);
    else
        DrillKeyDown(event);
}

void DrillWindow::keyReleaseEvent(QKeyEvent *event)
{
    event->accept();
    DrillKeyUp(event);
}

void DrillWindow::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    Public_Function::PaintDrillWindow(m_facts.skinKind, painter, event->region(), m_anchors);
    if (event->rect().top() < TitleZone)
        Public_Function::DrawWindowTitle(painter, Public_Function::ScreenMode(), m_title);
    Public_Function::DrawWindowEdge(painter, size());
}
