#include "app/AppNavigator.h"

#include "core/shell/Public_Define.h"
#include "platform/Paths.h"
#include "platform/Services.h"
#include "platform/SoundPlayer.h"
#include "ui/drills/frmEn_ArticleTrain.h"
#include "ui/drills/frmEn_KeyTrain_Advanced.h"
#include "ui/drills/frmEn_KeyTrain_Basic.h"
#include "ui/drills/frmEn_NumPad.h"
#include "ui/drills/frmEn_WordTrain.h"
#include "ui/records/DlgHighScore.h"
#include "ui/records/FrmUr_Manage.h"
#include "ui/shell/DlgHelp.h"
#include "ui/shell/Frm_Main.h"
#include "ui/shell/ShowMessage.h"
#include "ui/speedtest/DlgUr_IfBeginTest.h"
#include "ui/speedtest/Frm_BeginTest.h"
#include "ui/speedtest/frmFreeType.h"
#include "ui/speedtest/frmTest.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

void BringToFront(QWidget *window)
{
    window->setWindowState((window->windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace

AppNavigator::AppNavigator(QObject *parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

void AppNavigator::SetMainWindow(Frm_Main *window)
{
    m_main = window;
}

void AppNavigator::ComeForward()
{
    if (!m_main)
        return;
    BringToFront(m_main);
    if (m_practice)
        BringToFront(m_practice);
    if (QWidget *dialog = QApplication::activeModalWidget())
        BringToFront(dialog);
}

bool AppNavigator::IsBusy(const QWidget *instead)
{
    if (!m_practice || m_practice == instead)
        return false;
    BringToFront(m_practice);
    return true;
}

template <typename Window, typename Show>
void AppNavigator::OpenPractice(QWidget *instead, Show show)
{
    auto *window = new Window(*this, m_main);
    m_practice = window;
    (window->*show)();
    if (instead)
        instead->close();
}

void AppNavigator::OpenDrill(DrillKind kind, QWidget *instead)
{
    if (IsBusy(instead))
        return;
    if (Shared().EnSound != 0)
        PlatformServices().sound->WarmUp();
    switch (kind) {
    case DrillKind::KeyJunior:
        OpenPractice<frmEn_KeyTrain_Basic>(instead, &frmEn_KeyTrain_Basic::ShowDrill);
        break;
    case DrillKind::KeySenior:
        OpenPractice<frmEn_KeyTrain_Advanced>(instead, &frmEn_KeyTrain_Advanced::ShowDrill);
        break;
    case DrillKind::Word:
        OpenPractice<frmEn_WordTrain>(instead, &frmEn_WordTrain::ShowDrill);
        break;
    case DrillKind::Article:
        OpenPractice<frmEn_ArticleTrain>(instead, &frmEn_ArticleTrain::ShowDrill);
        break;
    case DrillKind::Numpad:
        OpenPractice<frmEn_NumPad>(instead, &frmEn_NumPad::ShowDrill);
        break;
    }
}

void AppNavigator::OpenSpeedTest(QWidget *instead)
{
    if (IsBusy(instead))
        return;
    if (Shared().ChSound != 0)
        PlatformServices().sound->WarmUp();
    OpenPractice<frmTest>(instead, &frmTest::ShowTest);
}

void AppNavigator::OpenFreeTyping(QWidget *instead)
{
    if (IsBusy(instead))
        return;
    if (Shared().ChSound != 0)
        PlatformServices().sound->WarmUp();
    OpenPractice<frmFreeType>(instead, &frmFreeType::ShowTest);
}

void AppNavigator::ShowTopList(QWidget *owner)
{
    DlgHighScore(owner).exec();
}

bool AppNavigator::OpenPersonalRecords()
{
    // What is being practised is stored only when it ends.
    if (IsBusy(nullptr))
        return false;
    return FrmUr_Manage(m_main).exec() == FrmUr_Manage::NewPlacementTest;
}

void AppNavigator::OfferPlacementTest()
{
    if (IsBusy(nullptr))
        return;
    DlgUr_IfBeginTest question(m_main);
    question.exec();
    if (question.ResultVal() != Public_Function::MessageYes || !m_main)
        return;
    auto *window = new Frm_BeginTest(*this, m_main);
    m_practice = window;
    window->ShowTest(question.IsEnglishTest());
}

void AppNavigator::ShowMainMenu()
{
    if (m_main && m_main->isVisible()) {
        m_main->raise();
        m_main->activateWindow();
    }
}

void AppNavigator::MinimizeAll()
{
    m_main->showMinimized();
}

void AppNavigator::ShowHelp(QWidget *from)
{
    QWidget *owner = from ? from->window() : m_main;
    const HelpBook book(Shared().HelpFile);
    if (book.Pages().isEmpty()) {
        Public_Function::ShowMessage(tr("The help file is missing or damaged:\n%1")
                                         .arg(Public_Function::NativePath(Shared().HelpFile)),
                                     u"Quorvex"_s, MessageIcon::Error, MessageButtons::Ok);
        return;
    }
    DlgHelp(book, owner->objectName(), owner).exec();
}

bool AppNavigator::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_F1 &&
        watched->isWidgetType()) {
        QWidget *window = QApplication::activeWindow();
        if (!qobject_cast<DlgHelp *>(window))
            ShowHelp(window);
        return true;
    }
    if (event->type() == QEvent::WindowActivate && watched == m_main && m_practice)
        QTimer::singleShot(0, m_practice, [this] { PassFocusToPractice(); });
    return QObject::eventFilter(watched, event);
}

/// A task bar gives the focus to the main window, which a drill covers: keys would go where nobody sees them.
void AppNavigator::PassFocusToPractice()
{
    if (m_practice && m_practice->isVisible() && m_main->isActiveWindow() &&
        !QApplication::activeModalWidget())
        m_practice->activateWindow();
}
