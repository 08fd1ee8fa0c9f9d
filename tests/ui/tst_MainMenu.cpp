#include "platform/ProgramLauncher.h"
#include "support/Fakes.h"
#include "support/SkinnedInstall.h"
#include "ui/shell/DlgHelp.h"
#include "ui/shell/Frm_Main.h"
#include "ui/shell/ScreenFit.h"
#include "ui/skin/SkinLibrary.h"
#include "ui/widgets/SkinButton.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

class FakeLauncher final : public ProgramLauncher
{
public:
    bool Start(const QString &nativePath) override
    {
        asked += nativePath;
        return succeeds;
    }

    QStringList asked;
    bool succeeds = true;
};

} // namespace

class TestMainMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_services.emplace();
        m_answers.emplace();
        m_navigator.emplace();
        PlatformServices().launcher = &m_launcher;
    }

    void cleanup()
    {
        m_menu.reset();
        m_install.reset();
        m_answers.reset();
        m_services.reset();
        m_launcher = {};
    }

    void ControlsStandWhereTheyBelong_data()
    {
        QTest::addColumn<QSize>("screen");
        QTest::newRow("smallest") << QSize(1024, 768);
        QTest::newRow("wide") << QSize(1920, 1080);
        QTest::newRow("odd") << QSize(1367, 769);
    }

    void ControlsStandWhereTheyBelong()
    {
        QFETCH(QSize, screen);
        Show(u"Ann"_s, screen);
        const QSize back = SkinLibrary().BitmapSize(u"MAIN_BACK"_s);
        const QPoint origin((screen.width() - back.width()) / 2, (screen.height() - back.height()) / 2 + 10);
        QCOMPARE(m_menu->findChild<QLabel *>(u"Lab_User"_s)->geometry(),
                 QRect(origin + QPoint(0, 160), QSize(528, 30)));
        int row = 0;
        for (const QString &name : {u"XBtnEnglish"_s, u"XBtnTest"_s, u"XBtnJiaocheng"_s, u"XBtnGameMissile"_s,
                                    u"XBtnGameRabbit"_s, u"XBtn_Gerenjilu"_s, u"XBtn_Tuichudenglu"_s})
            QCOMPARE(Button(name)->pos(), origin + QPoint(680, 220 + 50 * row++));
        QCOMPARE(Button(u"XBtn_Sys_Close"_s)->pos(), QPoint(screen.width() - 55, 3));
        QCOMPARE(Button(u"XBtn_Sys_Min"_s)->pos(), QPoint(screen.width() - 105, 3));
        QCOMPARE(Button(u"XBtn_Sys_Help"_s)->pos(), QPoint(screen.width() - 155, 3));
        const auto buttons = m_menu->findChildren<SkinButton *>();
        for (const SkinButton *button : buttons)
            QVERIFY2(QRect(QPoint(), screen).contains(button->geometry()), qPrintable(button->objectName()));
    }

    void ScaleFitsTheScreen_data()
    {
        QTest::addColumn<QSize>("logical");
        QTest::addColumn<double>("ratio");
        QTest::addColumn<double>("factor");
        QTest::newRow("smallest") << QSize(1024, 768) << 1.0 << 1.0;
        QTest::newRow("4K at 2") << QSize(1920, 1080) << 2.0 << 1.0;
        QTest::newRow("full HD at 2") << QSize(960, 540) << 2.0 << 540.0 / 748;
        QTest::newRow("too wide a scale") << QSize(512, 800) << 2.0 << 0.5;
        QTest::newRow("low screen") << QSize(1024, 600) << 1.0 << 1.0;
        QTest::newRow("low screen at 1.5") << QSize(853, 480) << 1.5 << 1 / 1.5;
        QTest::newRow("narrow screen, which is refused") << QSize(800, 600) << 1.0 << 1.0;
        QTest::newRow("scaled below 1 by the environment") << QSize(2048, 1536) << 0.5 << 2.0;
    }

    void ScaleFitsTheScreen()
    {
        QFETCH(QSize, logical);
        QFETCH(double, ratio);
        QFETCH(double, factor);
        const double found = ScaleToFit(logical, ratio);
        QVERIFY2(qAbs(found - factor) < 0.001, qPrintable(QString::number(found)));
        if (found < 1.0 && found * ratio > 1.0)
            QVERIFY(logical.height() / found >= SmallestLayout.height());
    }

    void EntriesLeadToTheirWindows()
    {
        Show(u"Ann"_s);
        Press(u"XBtnEnglish"_s);
        QCOMPARE(m_navigator->opened, QList{DrillKind::KeyJunior});
        Shared().TestSource = 2;
        Press(u"XBtnTest"_s);
        QCOMPARE(Shared().TestSource, 0);
        Press(u"XBtn_Sys_Help"_s);
        QCOMPARE(m_navigator->helpPages, QStringList{u"Frm_Main"_s});
    }

    void ProgramsAreStartedOrTheirAbsenceIsSaid()
    {
        Show(u"Ann"_s);
        for (const auto &[name, file] : {std::pair(u"XBtnJiaocheng"_s, u"Teach/Teach.Exe"_s),
                                         {u"XBtnGameMissile"_s, u"game/missile.Exe"_s},
                                         {u"XBtnGameRabbit"_s, u"game/rabbit.Exe"_s}}) {
            m_launcher.succeeds = true;
            Press(name);
            QCOMPARE(m_launcher.asked.last(), m_install->Native(file));
            QVERIFY(m_answers->texts.isEmpty());
            m_launcher.succeeds = false;
            Press(name);
            QCOMPARE(m_answers->texts.size(), 1);
            QVERIFY(m_answers->texts.takeFirst().contains(m_install->Native(file)));
        }
    }

    void ArrowsWalkTheMenu()
    {
        Show(u"Ann"_s);
        QVERIFY(Button(u"XBtnEnglish"_s)->hasFocus());
        QTest::keyClick(Button(u"XBtnEnglish"_s), Qt::Key_Down);
        QTest::keyClick(Button(u"XBtnTest"_s), Qt::Key_Down);
        QVERIFY(Button(u"XBtnJiaocheng"_s)->hasFocus());
        QTest::keyClick(Button(u"XBtnJiaocheng"_s), Qt::Key_Return);
        QCOMPARE(m_launcher.asked.size(), 1);
        QTest::keyClick(Button(u"XBtnJiaocheng"_s), Qt::Key_Up);
        QVERIFY(Button(u"XBtnTest"_s)->hasFocus());
    }

    void ChangingTheUserStoresAndLoads()
    {
        Show(u"Ann"_s);
        m_install->Write(u"user.ini"_s, "Ann;\r\nBob;\r\n");
        m_install->Write(u"Users/Bob/Setting.ini"_s,
                         "[Main]\r\nEnSound=2\r\nChSound=1\r\nNewLine=2\r\n[Exam]\r\nLimitTime=25\r\n");
        Shared().EnSound = 0;
        Shared().TestSource = 1;
        TypeInLogin(u"bob"_s);
        Press(u"XBtn_Tuichudenglu"_s);
        QVERIFY(m_install->Read(u"Users/Ann/Setting.ini"_s).contains("EnSound=0\r\n"));
        QCOMPARE(Shared().CurrentUserName, u"bob"_s);
        QCOMPARE(Shared().EnSound, 2);
        QCOMPARE(Shared().ChSound, 1);
        QCOMPARE(Shared().LimitTime, qint16(25));
        QCOMPARE(Shared().NewLine, 2);
        QCOMPARE(Shared().TestSource, 0);
        QCOMPARE(m_menu->findChild<QLabel *>(u"Lab_User"_s)->text(), u"Username:bob"_s);
    }

    void NobodyLoggedInIsAskedFirst()
    {
        Show(QString());
        TypeInLogin(QString());
        Press(u"XBtnEnglish"_s);
        QVERIFY(m_navigator->opened.isEmpty());
        TypeInLogin(u"Ann"_s);
        Press(u"XBtnEnglish"_s);
        QCOMPARE(Shared().CurrentUserName, u"Ann"_s);
        QCOMPARE(m_navigator->opened, QList{DrillKind::KeyJunior});
        // The folder of the user who is logged in goes: the next entry asks again and never makes it anew.
        QVERIFY(QDir(m_install->Native(u"Users/Ann"_s)).removeRecursively());
        TypeInLogin(QString());
        Press(u"XBtnEnglish"_s);
        QCOMPARE(m_navigator->opened.size(), 1);
        QVERIFY(m_install->Entries(u"Users"_s).isEmpty());
    }

    void ClosingStoresTheSounds()
    {
        Show(u"Ann"_s);
        Shared().EnSound = 2;
        QTest::keyClick(m_menu.get(), Qt::Key_F4, Qt::AltModifier);
        QVERIFY(!m_menu->isVisible());
        QVERIFY(m_install->Read(u"Users/Ann/Setting.ini"_s).contains("EnSound=2\r\n"));
    }

    void HelpOpensAtTheWindowsPage()
    {
        m_install.emplace(u"Ann"_s);
        const HelpBook book(Public_Function::ProductPath(qEnvironmentVariable("QUORVEX_INSTALL")) +
                            u"\\Quorvex.chm"_s);
        QVERIFY(book.Pages().size() >= 5);
        DlgHelp help(book, u"dlgUR_userlogin"_s, nullptr);
        help.show();
        auto *pages = help.findChild<QListWidget *>(u"lstHelpPages"_s);
        auto *text = help.findChild<QTextBrowser *>(u"txtHelpPage"_s);
        QCOMPARE(pages->currentItem()->text(), u"Logging in"_s);
        QVERIFY(text->toPlainText().contains(u"There is no password."_s));
        QTest::keyClick(pages, Qt::Key_Up);
        QVERIFY(text->toPlainText().startsWith(u"The menu"_s));
        // Every link of every page leads to a page of that name.
        static const QRegularExpression link(u"\\]\\(([^)]*)\\)"_s);
        for (const HelpBook::Page &page : book.Pages()) {
            for (const QRegularExpressionMatch &match : link.globalMatch(page.text)) {
                const HelpBook::Page &target = book.Pages()[book.IndexOf(match.captured(1))];
                QCOMPARE(target.name, match.captured(1));
            }
        }
        QVERIFY(HelpBook(u"\\nowhere\\Quorvex.chm"_s).Pages().isEmpty());
    }

private:
    void Show(const QString &user, const QSize &screen = QSize(1024, 768))
    {
        m_install.emplace(user);
        Shared().ScreenRect = QRect(QPoint(), screen);
        m_menu = std::make_unique<Frm_Main>(*m_navigator);
        m_menu->ShowMenu();
        QVERIFY(QTest::qWaitForWindowActive(m_menu.get()));
    }
    SkinButton *Button(const QString &name) const { return m_menu->findChild<SkinButton *>(name); }
    void Press(const QString &name) { QTest::mouseClick(Button(name), Qt::LeftButton); }
    /// Answers the login that comes next: the name and Enter, or Escape where there is no name.
    void TypeInLogin(const QString &name)
    {
        QTimer::singleShot(0, this, [name] {
            QWidget *login = QApplication::activeModalWidget();
            QVERIFY(login && QTest::qWaitForWindowActive(login));
            QTest::keyClicks(login->findChild<QLineEdit *>(), name);
            QTest::keyClick(login->focusWidget(), name.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
        });
    }

    std::optional<FakeServices> m_services;
    std::optional<FakeAnswers> m_answers;
    std::optional<FakeNavigator> m_navigator;
    FakeLauncher m_launcher;
    std::optional<SkinnedInstall> m_install;
    std::unique_ptr<Frm_Main> m_menu;
};

QTEST_MAIN(TestMainMenu)
#include "tst_MainMenu.moc"
