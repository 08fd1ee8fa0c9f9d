#include "ui/shell/Frm_Main.h"

#include "core/records/IUserRecord.h"
#include "core/shell/Public_Define.h"
#include "core/shell/UserSettings.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/ProgramLauncher.h"
#include "platform/Services.h"
#include "ui/shell/DlgUr_UserLogin.h"
#include "ui/shell/Navigator.h"
#include "ui/shell/ShowMessage.h"
#include "ui/shell/StartProgram.h"
#include "ui/skin/Fonts.h"
#include "ui/skin/SkinLibrary.h"
#include "ui/skin/StatusTexts.h"
#include "ui/skin/WindowFrame.h"
#include "ui/widgets/KeyHint.h"
#include "ui/widgets/PaintedAccess.h"
#include "ui/widgets/SkinButton.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QToolButton>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize PlainMenuSize(960, 620);
constexpr int MenuLeft = 680;
constexpr int MenuTop = 220;
constexpr int MenuStep = 50;

} // namespace

Frm_Main::Frm_Main(Navigator &navigator)
    : QWidget(nullptr,
              Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint)
    , m_navigator(navigator)
    , Lab_User(new QLabel(this))
    , Img_Sys_Menu(new QToolButton(this))
    , XBtnEnglish(new SkinButton(u"XBtnEnglish"_s, tr("&English typing"), this))
    , XBtnTest(new SkinButton(u"XBtnTest"_s, tr("&Speed test"), this))
    , XBtnJiaocheng(new SkinButton(u"XBtnJiaocheng"_s, tr("&Tutorial"), this))
    , XBtnGameMissile(new SkinButton(u"XBtnGameMissile"_s, tr("&Missile game"), this))
    , XBtnGameRabbit(new SkinButton(u"XBtnGameRabbit"_s, tr("&Rabbit game"), this))
    , XBtn_Gerenjilu(new SkinButton(u"XBtn_Gerenjilu"_s, tr("My re&cords"), this))
    , XBtn_Tuichudenglu(new SkinButton(u"XBtn_Tuichudenglu"_s, tr("Change &user"), this))
    , XBtn_Sys_Help(new SkinButton(u"XBtn_Sys_Help"_s, tr("&Help"), this))
    , XBtn_Sys_Min(new SkinButton(u"XBtn_Sys_Min"_s, tr("Mi&nimize"), this))
    , XBtn_Sys_Close(new SkinButton(u"XBtn_Sys_Close"_s, tr("C&lose"), this))
{
    Public_Function::SetAccessibleRole(this, QAccessible::Window);
    setObjectName(u"Frm_Main"_s);
    setWindowTitle(u"Quorvex"_s);
    setAttribute(Qt::WA_OpaquePaintEvent);
    Lab_User->setObjectName(u"Lab_User"_s);
    Lab_User->setTextFormat(Qt::PlainText);
    Img_Sys_Menu->setObjectName(u"Img_Sys_Menu"_s);
    Img_Sys_Menu->setAccessibleName(tr("System menu"));
    Img_Sys_Menu->setFocusPolicy(Qt::TabFocus);
    Img_Sys_Menu->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Space));
    setTabOrder(XBtn_Sys_Close, Img_Sys_Menu);
    Public_Function::ShowKey(Img_Sys_Menu);
    Public_Function::ShowKey(XBtn_Sys_Help, u"F1"_s);
    Public_Function::ShowKey(XBtn_Sys_Min);
    Public_Function::ShowKey(XBtn_Sys_Close, u"Alt+F4"_s);
    LayoutMainMenu();
    ShowUser();

    connect(XBtnEnglish, &SkinButton::clicked, this, [this] {
        if (EnsureUser())
            m_navigator.OpenDrill(DrillKind::KeyJunior);
    });
    connect(XBtnTest, &SkinButton::clicked, this, [this] {
        if (!EnsureUser())
            return;
        Shared().TestSource = 0;
        m_navigator.OpenSpeedTest();
    });
    connect(XBtnJiaocheng, &SkinButton::clicked, this,
            [] { Public_Function::StartShippedProgram(u"Teach\\Teach.Exe"_s); });
    connect(XBtnGameMissile, &SkinButton::clicked, this,
            [] { Public_Function::StartShippedProgram(u"game\\missile.Exe"_s); });
    connect(XBtnGameRabbit, &SkinButton::clicked, this,
            [] { Public_Function::StartShippedProgram(u"game\\rabbit.Exe"_s); });
    connect(XBtn_Gerenjilu, &SkinButton::clicked, this, [this] {
        if (EnsureUser() && m_navigator.OpenPersonalRecords())
            m_navigator.OfferPlacementTest();
    });
    connect(XBtn_Tuichudenglu, &SkinButton::clicked, this, &Frm_Main::UserLogin);
    connect(XBtn_Sys_Help, &SkinButton::clicked, this, [this] { m_navigator.ShowHelp(this); });
    connect(XBtn_Sys_Min, &SkinButton::clicked, this, &QWidget::showMinimized);
    connect(XBtn_Sys_Close, &SkinButton::clicked, this, &QWidget::close);
    connect(Img_Sys_Menu, &QToolButton::clicked, this, &Frm_Main::ShowSystemMenu);
}

void Frm_Main::ShowMenu()
{
    Public_Function::CoverScreen(this);
    XBtnEnglish->setFocus();

    // While the display server and the window manager are busy with the window.
    const SkinLibrary library;
    for (const QString &picture : {u"MAIN_BG"_s, u"MAIN_BACK"_s})
        library.Bitmap(picture, devicePixelRatioF());
    for (const SkinButton *button : findChildren<SkinButton *>())
        button->LoadLook();
}

void Frm_Main::LayoutMainMenu()
{
    const SkinLibrary library;
    const QSize screenSize = Shared().ScreenRect.size();
    QSize back = library.BitmapSize(u"MAIN_BACK"_s);
    if (back.isEmpty())
        back = PlainMenuSize;
    // To whole pixels, halves to the even one.
    const auto half = [](int pixels) { return static_cast<int>(std::nearbyint(pixels / 2.0)); };
    m_backgroundOrigin =
        QPoint(half(screenSize.width() - back.width()), half(screenSize.height() - back.height()) + 10);

    Lab_User->setGeometry(m_backgroundOrigin.x(), m_backgroundOrigin.y() + 160, 528, 30);
    Lab_User->setFont(Public_Function::InterfaceFont(12, true));
    QPalette white = Lab_User->palette();
    white.setColor(QPalette::WindowText, Qt::white);
    Lab_User->setPalette(white);

    const auto place = [&library](SkinButton *button, const QString &bitmap, const QPoint &position) {
        button->SetButton(bitmap, library);
        button->move(position);
    };
    place(XBtn_Sys_Close, u"BTN_CLOSE"_s, QPoint(screenSize.width() - 55, 3));
    place(XBtn_Sys_Min, u"BTN_MIN"_s, QPoint(screenSize.width() - 105, 3));
    place(XBtn_Sys_Help, u"BTN_HELP"_s, QPoint(screenSize.width() - 155, 3));

    QPoint next = m_backgroundOrigin + QPoint(MenuLeft, MenuTop);
    const std::pair<SkinButton *, QString> menu[] = {
        {XBtnEnglish, u"BTN_YINGWEN"_s},
        {XBtnTest, u"BTN_CESHI"_s},
        {XBtnJiaocheng, u"BTN_JIAOCHENG"_s},
        {XBtnGameMissile, u"BTN_YOUXI_MISSILE"_s},
        {XBtnGameRabbit, u"BTN_YOUXI_RABBIT"_s},
        {XBtn_Gerenjilu, u"BTN_GERENJILU"_s},
        {XBtn_Tuichudenglu, u"BTN_TUICHUDENGLU"_s},
    };
    for (const auto &[button, bitmap] : menu) {
        place(button, bitmap, next);
        next.ry() += MenuStep;
    }

    Img_Sys_Menu->setAutoRaise(true);
    Img_Sys_Menu->setIcon(windowIcon().isNull() ? QIcon(u":/message/APP_ICON.png"_s) : windowIcon());
    Img_Sys_Menu->setIconSize(QSize(18, 18));
    Img_Sys_Menu->setStyleSheet(u"QToolButton { border: 2px solid transparent; border-radius: 4px; }"
                                "QToolButton:hover { background: rgba(255, 255, 255, 48); }"
                                "QToolButton:focus { border-color: %1; }"_s.arg(
                                    library.Color(u"focus"_s, QColor(255, 164, 84)).name()));
    Img_Sys_Menu->setGeometry(5, 7, 24, 24);
}

void Frm_Main::PaintMainBackground(QPainter &painter, const QRect &exposed) const
{
    const SkinLibrary library;
    Public_Function::TileMainGround(painter, exposed, library);
    constexpr QColor dark(141, 148, 167);
    constexpr QColor light(211, 214, 224);
    painter.fillRect(0, 0, width(), 1, light);
    painter.fillRect(0, 0, 1, height(), light);
    painter.fillRect(width() - 2, 0, 1, height() - 1, light);
    painter.fillRect(0, height() - 2, width() - 1, 1, light);
    painter.fillRect(width() - 1, 0, 1, height(), dark);
    painter.fillRect(0, height() - 1, width(), 1, dark);

    if (QRect(m_backgroundOrigin, library.BitmapSize(u"MAIN_BACK"_s)).intersects(exposed))
        painter.drawPixmap(m_backgroundOrigin, library.Bitmap(u"MAIN_BACK"_s, devicePixelRatioF()));
    painter.setFont(Public_Function::InterfaceFont(13, true));
    painter.setPen(Qt::white);
    const QPoint titlePosition(30, Public_Function::ScreenMode() == 1 ? 6 : 10);
    Public_Function::PrintScaledText(painter, titlePosition, u"Quorvex"_s);
}

void Frm_Main::paintEvent(QPaintEvent *event)
{
    Public_Function::PrepareToPaint(this, event->rect());
    QPainter painter(this);
    PaintMainBackground(painter, event->rect());
}

void Frm_Main::keyPressEvent(QKeyEvent *event)
{
    if (Public_Function::IsCloseKey(event))
        close();
    else if (event->key() == Qt::Key_F1)
        m_navigator.ShowHelp(this);
    else if (event->key() == Qt::Key_Down)
        focusNextChild();
    else if (event->key() == Qt::Key_Up)
        focusPreviousChild();
    else
        QWidget::keyPressEvent(event);
}

void Frm_Main::closeEvent(QCloseEvent *event)
{
    // Windows that lie over the menu store what they hold before the program ends.
    const QWidgetList windows = findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    for (QWidget *window : windows) {
        if (window->isWindow() && window->isVisible() && !window->close()) {
            event->ignore();
            return;
        }
    }
    Public_Function::SaveSoundSetting();
    event->accept();
}

void Frm_Main::ShowSystemMenu()
{
    QMenu menu(this);
    menu.addAction(tr("Mi&nimize"), this, &QWidget::showMinimized);
    menu.addSeparator();
    menu.addAction(u"Quorvex"_s, this, [] {
        Public_Function::ShowMessage(
            tr("Quorvex, a touch-typing tutor.\nVersion %1").arg(QCoreApplication::applicationVersion()),
            u"Quorvex"_s, MessageIcon::Information, MessageButtons::Ok);
    });
    menu.exec(Img_Sys_Menu->mapToGlobal(QPoint(0, Img_Sys_Menu->height())));
}

void Frm_Main::UserLogin()
{
    Public_Function::SaveSoundSetting();
    const bool chosen = DlgUr_UserLogin(this).exec() == QDialog::Accepted;
    if (chosen)
        m_userHadFolder = Public_Function::PathExists(Public_Function::UserDir());
    Public_Function::LoadSoundSetting();
    Public_Function::LoadTestSetting();
    ShowUser();
    if (!chosen)
        return;
    SayOnceIfReadOnly();
    IUserRecord record;
    record.SetCurrentUser(Shared().CurrentUserName);
    if (record.IfBeginTest())
        m_navigator.OfferPlacementTest();
}

void Frm_Main::ShowUser()
{
    const QString text = u"Username:"_s + Shared().CurrentUserName;
    Lab_User->setText(Lab_User->fontMetrics().elidedText(text, Qt::ElideRight, Lab_User->width()));
    Lab_User->setAccessibleName(text);
    Lab_User->setToolTip(Lab_User->text() == text ? QString() : text);
}

bool Frm_Main::EnsureUser()
{
    // On a medium that cannot be written a user never gets a folder, and may practise all the same.
    const auto isLoggedIn = [this] {
        return !Shared().CurrentUserName.isEmpty() &&
               (!m_userHadFolder || Public_Function::PathExists(Public_Function::UserDir()));
    };
    if (!isLoggedIn())
        UserLogin();
    return isLoggedIn();
}

void Frm_Main::SayOnceIfReadOnly()
{
    if (m_saidReadOnly || Public_Function::CanWriteIn(Public_Function::UserDir()))
        return;
    m_saidReadOnly = true;
    Public_Function::ShowMessage(
        tr("Quorvex cannot write to its folder, so nothing that you practise will be kept:\n%1")
            .arg(Public_Function::NativePath(Public_Function::UserDir())),
        u"Quorvex"_s, MessageIcon::Stop, MessageButtons::Ok);
}
