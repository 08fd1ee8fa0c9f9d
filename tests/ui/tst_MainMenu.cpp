#include "platform/WriteFault.h"
#include "support/Fakes.h"
#include "support/SkinnedInstall.h"
#include "ui/shell/DlgHelp.h"
#include "ui/shell/Frm_Main.h"
#include "ui/shell/ScreenFit.h"
#include "ui/widgets/SkinButton.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::Literals::StringLiterals;

class TestMainMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_menu.reset(); }

    void ControlsStandWhereTheyBelong()
    {
        for (const auto &[screen, origin] : {std::pair(QSize(1024, 768), QPoint(54, 94)),
                                             {QSize(1920, 1080), QPoint(502, 250)},
                                             {QSize(1365, 769), QPoint(224, 94)},
                                             {QSize(1367, 771), QPoint(226, 96)}}) {
            Show(u"Ann"_s, screen);
            QCOMPARE(UserLabel()->geometry(), QRect(origin + QPoint(0, 160), QSize(528, 30)));
            int row = 0;
            for (const QString &name : Entries)
                QCOMPARE(Button(name)->pos(), origin + QPoint(680, 220 + 50 * row++));
            for (const SkinButton *button : m_menu->findChildren<SkinButton *>())
                QVERIFY2(QRect(QPoint(), screen).contains(button->geometry()),
                         qPrintable(button->objectName()));
        }
    }

    void ScaleFitsTheScreen()
    {
        using Row = std::tuple<QSize, double, double>; // logical size, ratio, factor
        for (const auto &[logical, ratio, factor] :
             {Row{{1024, 768}, 1, 1}, Row{{1920, 1080}, 2, 1}, Row{{960, 540}, 2, 540.0 / 748},
              Row{{512, 800}, 2, 0.5}, Row{{1024, 600}, 1, 1}, Row{{853, 480}, 1.5, 1 / 1.5},
              Row{{800, 600}, 1, 1}, Row{{2048, 1536}, 0.5, 2}})
            QVERIFY(qAbs(ScaleToFit(logical, ratio) - factor) < 0.001);
    }

    void EntriesLeadToTheirWindowsAndPrograms()
    {
        Show(u"Ann"_s);
        Press(u"XBtnEnglish"_s);
        QCOMPARE(m_navigator->opened, QList{DrillKind::KeyJunior});
        Shared().TestSource = 2;
        Press(u"XBtnTest"_s);
        QCOMPARE(Shared().TestSource, 0);
        for (const bool retest : {false, true}) {
            m_navigator->retest = retest;
            Press(u"XBtn_Gerenjilu"_s);
            QCOMPARE(m_navigator->placementTests, int(retest));
        }
        Press(u"XBtn_Sys_Help"_s);
        QCOMPARE(m_navigator->helpPages, QStringList{u"Frm_Main"_s});

        // The programs are started, or it is said which one is missing.
        const QStringList files{u"Teach/Teach.Exe"_s, u"game/missile.Exe"_s, u"game/rabbit.Exe"_s};
        for (int program = 0; program < 3; ++program) {
            const QString path = m_install->Native(files[program]);
            for (const bool succeeds : {true, false}) {
                m_launcher.succeeds = succeeds;
                Press(Entries[2 + program]);
                QCOMPARE(m_launcher.asked, path);
                QCOMPARE(m_answers.texts.isEmpty(), succeeds);
            }
            QVERIFY(m_answers.texts.takeFirst().contains(path));
        }
    }

    void ChangingTheUserStoresAndLoads()
    {
        Show(u"Ann"_s);
        m_install->Write(u"user.ini"_s, "Ann;\r\nBob;\r\n");
        m_install->Write(u"Users/Bob/Setting.ini"_s, "[Main]\r\nEnSound=2\r\n[Exam]\r\nLimitTime=25\r\n");
        Shared().EnSound = 0;
        Shared().TestSource = 1;
        TypeInLogin(u"bob"_s);
        Press(u"XBtn_Tuichudenglu"_s);
        QVERIFY(m_install->Read(u"Users/Ann/Setting.ini"_s).contains("EnSound=0\r\n"));
        QCOMPARE(Shared().CurrentUserName, u"bob"_s);
        QCOMPARE(Shared().EnSound, 2);
        QCOMPARE(Shared().LimitTime, qint16(25));
        QCOMPARE(Shared().TestSource, 0);
        QCOMPARE(UserLabel()->text(), u"Username:bob"_s);
        Shared().EnSound = 1;
        QTest::keyClick(m_menu.get(), Qt::Key_F4, Qt::AltModifier);
        QVERIFY(!m_menu->isVisible());
        QVERIFY(m_install->Read(u"Users/Bob/Setting.ini"_s).contains("EnSound=1\r\n"));
    }

    void NobodyLoggedInIsAskedFirst()
    {
        Show(QString());
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

    void WhereNothingCanBeWrittenOnePractisesAllTheSame()
    {
        for (const bool full : {false, true}) {
            Show(QString());
            m_answers.texts.clear();
            if (full)
                CurrentWriteFault() = WriteFault();
            else
                m_install->Write(u"Users"_s, "no folder, and none can be made");
            for (int entry = 1; entry <= 2; ++entry) {
                if (entry == 1)
                    TypeInLogin(u"Ann"_s);
                Press(u"XBtnEnglish"_s);
                QCOMPARE(m_navigator->opened.size(), entry);
                QCOMPARE(m_answers.texts.size(), 1); // said once
            }
            CurrentWriteFault().reset();
        }
    }

    void HelpOpensAtTheWindowsPage()
    {
        m_install.emplace(u"Ann"_s);
        const HelpBook book(Public_Function::ProductPath(qEnvironmentVariable("QUORVEX_INSTALL")) +
                            u"\\Quorvex.chm"_s);
        DlgHelp help(book, u"dlgUR_userlogin"_s, nullptr);
        help.show();
        auto *pages = help.findChild<QListWidget *>(u"lstHelpPages"_s);
        auto *text = help.findChild<QTextBrowser *>(u"txtHelpPage"_s);
        QCOMPARE(pages->currentItem()->text(), u"Logging in"_s);
        QVERIFY(text->toPlainText().contains(u"There is no password."_s));
        QTest::keyClick(pages, Qt::Key_Up);
        QVERIFY(text->toPlainText().startsWith(u"The menu"_s));
        // A search leaves the pages that hold all its words; Escape first ends it.
        auto *search = help.findChild<QLineEdit *>(u"txtHelpSearch"_s);
        QTest::keyClicks(search, u"times TWO half"_s);
        const auto shown = [pages] {
            QStringList titles;
            for (int row = 0; row < pages->count(); ++row) {
                if (!pages->isRowHidden(row))
                    titles += pages->item(row)->text();
            }
            return titles;
        };
        QCOMPARE(shown(), QStringList({u"The result of a test"_s, u"The speed curve"_s}));
        QCOMPARE(pages->currentItem()->text(), u"The result of a test"_s);
        QVERIFY(!text->extraSelections().isEmpty());
        QTest::keyClick(search, Qt::Key_Escape);
        QCOMPARE(shown().size(), book.Pages().size());
        // Every link of every page leads to a page of that name.
        static const QRegularExpression link(u"\\]\\(([^)]*)\\)"_s);
        for (const HelpBook::Page &page : book.Pages()) {
            for (const QRegularExpressionMatch &match : link.globalMatch(page.text))
                QCOMPARE(book.Pages()[book.IndexOf(match.captured(1))].name, match.captured(1));
        }
        QVERIFY(HelpBook(u"\\nowhere\\Quorvex.chm"_s).Pages().isEmpty());
    }

private:
    void Show(const QString &user, const QSize &screen = QSize(1024, 768))
    {
        m_menu.reset();
        m_install.emplace(user);
        m_navigator.emplace();
        PlatformServices().launcher = &m_launcher;
        Shared().ScreenRect = QRect(QPoint(), screen);
        m_menu = std::make_unique<Frm_Main>(*m_navigator);
        m_menu->ShowMenu();
        QVERIFY(QTest::qWaitForWindowActive(m_menu.get()));
        QVERIFY(Button(Entries[0])->hasFocus());
    }
    SkinButton *Button(const QString &name) const { return m_menu->findChild<SkinButton *>(name); }
    QLabel *UserLabel() const { return m_menu->findChild<QLabel *>(u"Lab_User"_s); }
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

    const QStringList Entries{u"XBtnEnglish"_s,      u"XBtnTest"_s,       u"XBtnJiaocheng"_s,
                              u"XBtnGameMissile"_s,  u"XBtnGameRabbit"_s, u"XBtn_Gerenjilu"_s,
                              u"XBtn_Tuichudenglu"_s};
    FakeServices m_services;
    FakeAnswers m_answers;
    FakeLauncher m_launcher;
    std::optional<FakeNavigator> m_navigator;
    std::optional<SkinnedInstall> m_install;
    std::unique_ptr<Frm_Main> m_menu;
};

QTEST_MAIN(TestMainMenu)
#include "tst_MainMenu.moc"
