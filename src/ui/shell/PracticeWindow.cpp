#include "ui/shell/PracticeWindow.h"

#include "core/shell/Public_Define.h"
#include "platform/FreeMemory.h"
#include "ui/shell/CoveredWindow.h"
#include "ui/skin/Fonts.h"
#include "ui/skin/SkinLibrary.h"
#include "ui/skin/StatusTexts.h"
#include "ui/skin/WindowFrame.h"
#include "ui/widgets/KeyHint.h"
#include "ui/widgets/ProgressBox.h"
#include "ui/widgets/SkinButton.h"
#include "ui/widgets/StatusLabel.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QPixmapCache>
#include <QTimer>
#include <QTimerEvent>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int StatusInterval = 500; // milliseconds
constexpr int TitleZone = 40;       // the title is printed above this line
constexpr int GroundKept = 3000;    // milliseconds

} // namespace

PracticeWindow::PracticeWindow(const Names &names, const QString &title, Navigator &navigator, QWidget *owner)
    : QDialog(owner, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint)
    , StatusTimer(new QTimer(this))
    , labLessonMsg(AddLabel(u"labLessonMsg"_s, {}))
    , labTime(AddLabel(u"labTime"_s, tr("Time")))
    , labSpeed(AddLabel(u"labSpeed"_s, tr("Speed")))
    , labVeracity(AddLabel(u"labVeracity"_s, tr("Correct rate")))
    , labHint(AddLabel(names.hint, {}))
    , picProgress(new ProgressBox(this))
    , BtnReturn(AddButton(u"BtnReturn"_s, tr("&Back to the menu"), u"BTN_BACK"_s))
    , m_navigator(navigator)
    , m_title(title)
    , BtnHelp(AddButton(u"BtnHelp"_s, tr("Help"), u"BTN_HELP"_s))
    , btnMiniMize(AddButton(u"btnMiniMize"_s, tr("&Minimize"), u"BTN_MIN"_s))
    , BtnClose(AddButton(u"BtnClose"_s, tr("Close"), u"BTN_CLOSE"_s))
{
    setObjectName(names.window);
    setWindowTitle(title);
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_OpaquePaintEvent);

    Public_Function::ShowKey(BtnHelp, u"F1"_s);
    Public_Function::ShowKey(BtnClose, u"Alt+F4"_s);
    StatusTimer->setObjectName(names.timer);
    StatusTimer->setInterval(StatusInterval);
    connect(StatusTimer, &QTimer::timeout, this, [this] { OnTimer(); });
    connect(BtnClose, &SkinButton::clicked, this, &QWidget::close);
    connect(BtnReturn, &SkinButton::clicked, this, &QWidget::close);
    connect(BtnHelp, &SkinButton::clicked, this, [this] { m_navigator.ShowHelp(this); });
    connect(btnMiniMize, &SkinButton::clicked, this, [this] { OnMinimize(); });
}

void PracticeWindow::MinimizeProgram()
{
    m_navigator.MinimizeAll();
}

void PracticeWindow::FindLayout()
{
    m_layout = CalcLayoutMode(QSize(AreaWidth(), Shared().LayoutHeight()));
}

void PracticeWindow::ShowOverScreen()
{
    Public_Function::CoverScreen(this);
    raise();
    activateWindow();
}

int PracticeWindow::AreaWidth() const
{
    return Shared().LayoutWidth();
}

QLabel *PracticeWindow::AddLabel(const QString &objectName, const QString &name)
{
    auto *label = new StatusLabel(this);
    label->setObjectName(objectName);
    label->setAccessibleName(name);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    QPalette colors = label->palette();
    colors.setColor(QPalette::WindowText, QColor(80, 80, 80));
    label->setPalette(colors);
    return label;
}

SkinButton *PracticeWindow::AddButton(const QString &objectName, const QString &name, const QString &bitmap)
{
    auto *button = new SkinButton(objectName, name, this);
    button->setFocusPolicy(Qt::NoFocus);
    Public_Function::ShowKey(button);
    button->SetButton(bitmap, SkinLibrary());
    return button;
}

void PracticeWindow::PlaceFrame(int narrowPanelTop, int widePanelTop)
{
    const int right = AreaWidth();
    BtnHelp->move(right - m_layout.Pick(155, 150), 4);
    btnMiniMize->move(right - m_layout.Pick(105, 100), 4);
    BtnClose->move(right - m_layout.Pick(55, 50), 4);
    BtnReturn->move(m_layout.origin + m_layout.Pick(QPoint(650, 515), QPoint(830, 655)));

    const int statusTop = m_layout.Pick(narrowPanelTop + 10, widePanelTop + 13);
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
    place(labHint, {25, 518, 150, 36}, {50, 660, 142, 44});
    labHint->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    labHint->setWordWrap(true);
    labTime->setText(u"00:00:00"_s);
    labVeracity->setText(u"00%"_s);
    PlaceStatusIcons();
}

void PracticeWindow::PlaceStatusIcons()
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

void PracticeWindow::SetTitle(const QString &title)
{
    m_title = title;
    setWindowTitle(title);
    update(0, 0, width(), TitleZone);
}

void PracticeWindow::ShowLessonTitle(const QString &title)
{
    labLessonMsg->setText(
        labLessonMsg->fontMetrics().elidedText(title, Qt::ElideRight, labLessonMsg->width()));
    // A title that is shown whole need not be said twice.
    labLessonMsg->setAccessibleName(title);
    labLessonMsg->setToolTip(labLessonMsg->text() == title ? QString() : title);
}

void PracticeWindow::ShowHint(const QString &text)
{
    if (labHint->text() == text)
        return;
    // One with the name of an input method may need more room than there is beside the hands.
    constexpr int widest = 300;
    const auto isCut = [this, &text](int width) {
        const QRect room(0, 0, width, QWIDGETSIZE_MAX);
        return labHint->fontMetrics().boundingRect(room, Qt::TextWordWrap, text).height() > labHint->height();
    };
    int width = m_layout.Pick(150, 142);
    while (width < widest && isCut(width))
        width += 10;
    labHint->resize(width, labHint->height());
    labHint->setText(text);
}

void PracticeWindow::reject()
{
    close();
}

bool PracticeWindow::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        // A key that is still held from the window before must not lead on from this one, and Alt with digits
        // of the keypad is how some systems type characters.
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->isAutoRepeat() || key->modifiers().testFlag(Qt::KeypadModifier)) {
            event->accept();
            return true;
        }
    }
    return QDialog::event(event);
}

PracticeWindow::~PracticeWindow() = default;

void PracticeWindow::paintEvent(QPaintEvent *event)
{
    Public_Function::PrepareToPaint(this, event->rect());
    QPainter painter(this);
    Public_Function::PaintDrillWindow(SkinKind(), painter, event->region(), m_anchors);
    if (event->rect().top() < TitleZone)
        Public_Function::DrawWindowTitle(painter, Public_Function::ScreenMode(), m_title);
    Public_Function::DrawWindowEdge(painter, size());
    m_groundTimer.start(GroundKept, this);
}

/// What changes while people type keeps what it needs. The other pictures, megabytes of them, also those of
/// the menu that this window hides, are decoded again when they are needed; so is the menu's own image.
void PracticeWindow::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_groundTimer.timerId()) {
        QDialog::timerEvent(event);
        return;
    }
    m_groundTimer.stop();
    QPixmapCache::clear();
    QWidget *menu = parentWidget() ? parentWidget()->window() : nullptr;
    if (menu && menu->updatesEnabled() && frameGeometry().contains(menu->frameGeometry())) {
        m_menu.reset();
        m_menu = std::make_unique<CoveredWindow>(menu);
    }
    Public_Function::GiveBackFreeMemory();
}

void PracticeWindow::RepaintGround()
{
    HeldGround::RenewAll();
    update();
}
