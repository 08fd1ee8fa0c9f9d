#include "core/engine/KTest.h"
#include "core/records/RecordFile.h"
#include "support/DictionaryBytes.h"
#include "support/Fakes.h"
#include "support/SkinnedInstall.h"
#include "ui/drills/DlgEn_ArticleLesson.h"
#include "ui/drills/DlgEn_ArticleTrainSetting.h"
#include "ui/drills/DlgEn_KeyLesson.h"
#include "ui/drills/DlgEn_KeyTrainSetting.h"
#include "ui/drills/DlgEn_WordLesson.h"
#include "ui/drills/DlgEn_WordTrainSetting.h"
#include "ui/drills/frmEn_ArticleTrain.h"
#include "ui/drills/frmEn_KeyTrain_Advanced.h"
#include "ui/drills/frmEn_KeyTrain_Basic.h"
#include "ui/drills/frmEn_NumPad.h"
#include "ui/drills/frmEn_WordTrain.h"
#include "ui/records/DlgHighScore.h"
#include "ui/records/FrmUr_Manage.h"
#include "ui/shell/DlgHelp.h"
#include "ui/shell/DlgUr_UserLogin.h"
#include "ui/shell/Dlg_MessageBox.h"
#include "ui/shell/Frm_Main.h"
#include "ui/speedtest/DlgSelLsn.h"
#include "ui/speedtest/DlgTestResult.h"
#include "ui/speedtest/DlgTestSelect.h"
#include "ui/speedtest/DlgTestSetting.h"
#include "ui/speedtest/DlgUr_BeginTestResult.h"
#include "ui/speedtest/DlgUr_IfBeginTest.h"
#include "ui/speedtest/Frm_BeginTest.h"
#include "ui/speedtest/frmFreeType.h"
#include "ui/speedtest/frmTest.h"
#include "ui/widgets/MarkBox.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::Literals::StringLiterals;

/// That everybody can use every window: without a mouse, and without seeing it.
class tst_Access : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { AddMakers(); }
    void init()
    {
        m_services.emplace();
        m_install.emplace(u"Ann"_s);
        m_navigator.emplace();
        m_answers.emplace();
        m_owner = std::make_unique<QWidget>();
        m_install->Write(u"user.ini"_s, "Ann;\r\nBob;\r\n");
        m_install->Write(u"Data/English/T_Character/Standard/00.txt"_s, "Home row\r\nas Df\r\n");
        m_install->Write(u"Data/English/T_Character/Numpad/00.txt"_s, "Keypad\r\n12\r\n");
        m_install->Write(u"Data/English/T_Article/Adage/11.txt"_s, "A stitch in time");
        m_install->Write(u"Data/English/Professional/Law/one.txt"_s, "A law");
        for (const char *text : {"English/E_General/lunch.txt", "English/BeginTest/1.txt"})
            m_install->Write(u"Data/"_s + QLatin1StringView(text), "Lunch is at noon.\r\n");
        const QString words = u"Data/English/T_Word/Dictionary/TOEFL."_s;
        m_install->Write(words + u"ID"_s, ListRecord(1, "art", 1));
        WriteEntryFile(m_install->Native(words + u"Dat"_s), {{1, "% n. \n# made"}});
        const QDate day(2024, 1, 1);
        for (const char *group : {"EN", "PY", "WB", "EX"})
            m_install->Write(u"Users/Ann/Record%1.Dat"_s.arg(QLatin1StringView(group)),
                             RecordFile::Encode({TrainingRecord{day, 10, 90, u"A day"_s, 0},
                                                 TrainingRecord{day.addDays(1), 20, 95, u"Next day"_s, 0}}));
        for (const char *language : {"EN", "CN"})
            m_install->Write(u"Users/Ann/Mistake%1.Dat"_s.arg(QLatin1StringView(language)),
                             RecordFile::Encode({MistakeRecord{u"D"_s, 9}, MistakeRecord{u"F"_s, 2}}));
    }
    void cleanup()
    {
        delete m_window;
        m_owner.reset();
    }

    void EverythingIsNamedAndReached_data()
    {
        QTest::addColumn<QString>("window");
        for (const QString &name : m_makers.keys())
            QTest::newRow(qPrintable(name)) << name;
    }
    void EverythingIsNamedAndReached()
    {
        QFETCH(QString, window);
        m_window = m_makers[window]();
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window));
        QTest::qWait(0);
        m_problems.clear();
        FollowTab();
        Look(QAccessible::queryAccessibleInterface(m_window));
        LookForTwins();
        QVERIFY2(m_problems.isEmpty(), qPrintable(u'\n' + m_problems.join(u'\n')));
    }

    // In a lesson every key is the lesson's, but those with Alt.
    void AltPressesTheButtonsOfALesson_data()
    {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QChar>("letter");
        QTest::addColumn<QString>("done");
        const QString table = uR"(
junior: L dialog, B menu, M minimized, S dialog, 1 nothing, K drill 4
senior: L dialog, B menu, M minimized
word drill: L dialog, B menu, M minimized
text drill: L dialog, B menu, M minimized, 2 drill 1
keypad: L dialog, B menu, M minimized, K drill 0
speed test: S dialog, T top list, 2 free typing, P nothing
free typing: 1 speed test
placement: F dialog, B menu)"_s;
        for (const QString &line : table.trimmed().split(u'\n')) {
            const QString window = line.section(u": "_s, 0, 0);
            for (const QString &row : line.section(u": "_s, 1).split(u", "_s))
                QTest::addRow("%s Alt+%s", qPrintable(window), qPrintable(row))
                    << window << row[0] << row.sliced(2);
        }
    }
    void AltPressesTheButtonsOfALesson()
    {
        QFETCH(QString, window);
        QFETCH(QChar, letter);
        const auto key = Qt::Key(letter.unicode());
        m_window = m_makers[window]();
        QVERIFY(QTest::qWaitForWindowActive(m_window));
        QWidget *focus = m_window->focusWidget() ? m_window->focusWidget() : m_window.data();
        bool dialog = false;
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&dialog] {
            if (QWidget *modal = QApplication::activeModalWidget()) {
                dialog = true;
                QTest::keyClick(modal, Qt::Key_Escape);
            }
        });
        watch.start(1);
        // Held, it presses nothing: the key may come from the window before.
        QKeyEvent held(QEvent::ShortcutOverride, key, Qt::AltModifier, {}, true);
        QApplication::sendEvent(focus, &held);
        QVERIFY(held.isAccepted());
        QTest::keyClick(focus, key, Qt::AltModifier);
        QFETCH(QString, done);
        if (done == u"nothing"_s)
            QTest::qWait(200); // longer than a button stays down
        QTRY_COMPARE(dialog ? u"dialog"_s : WhereItLed(), done);
    }

private:
    QString WhereItLed() const
    {
        QStringList led = m_navigator->tests;
        for (const DrillKind kind : m_navigator->opened)
            led += u"drill %1"_s.arg(int(kind));
        if (m_navigator->minimized)
            led += u"minimized"_s;
        else if (m_navigator->menuShown && led.isEmpty())
            led += u"menu"_s;
        return led.isEmpty() ? u"nothing"_s : led.join(u' ');
    }

    /// Everything that Tab leads to in the window, until it comes round.
    void FollowTab()
    {
        m_reached.clear();
        while (QWidget *focus = m_window->focusWidget()) {
            if (m_reached.contains(focus) || focus == m_window)
                break;
            m_reached += focus;
            QTest::keyClick(focus, Qt::Key_Tab);
            if (m_window->focusWidget() == focus && m_reached.size() == 1 &&
                qobject_cast<QTextBrowser *>(focus))
                QTest::keyClick(focus, Qt::Key_Backtab); // from link to link first
        }
    }
    bool IsReached(const QWidget *control) const
    {
        if (m_reached.contains(const_cast<QWidget *>(control)))
            return true;
        // Arrow keys lead on inside of a group.
        const bool ofGroup =
            qobject_cast<const QRadioButton *>(control) || qobject_cast<const MarkBox *>(control);
        return ofGroup &&
               std::any_of(m_reached.cbegin(), m_reached.cend(), [control](const QWidget *reached) {
                   return reached->metaObject() == control->metaObject() &&
                          reached->parentWidget() == control->parentWidget();
               });
    }

    void Look(QAccessibleInterface *part)
    {
        const auto *widget = qobject_cast<QWidget *>(part->object());
        if (!widget || !widget->isVisible())
            return;
        LookAt(part, widget);
        // What is in a view or a box that can be typed in is the toolkit's.
        if (widget->inherits("QAbstractScrollArea") || widget->inherits("QComboBox"))
            return;
        for (int i = 0; i < part->childCount(); ++i)
            Look(part->child(i));
    }
    void LookAt(QAccessibleInterface *part, const QWidget *widget)
    {
        const auto complain = [this, part, widget](const QString &what) {
            m_problems += widget->objectName() + u" \""_s + part->text(QAccessible::Name) + u"\": "_s + what;
        };
        const QString name = part->text(QAccessible::Name);
        const QString description = part->text(QAccessible::Description);
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        const bool interactive = button || widget->focusPolicy() != Qt::NoFocus || widget->isWindow();
        if (interactive && (name.isEmpty() || name == widget->objectName() || name.contains(u'&')))
            complain(u"a poor name"_s);
        if (part->role() == QAccessible::NoRole ||
            (part->role() == QAccessible::Client && (part->childCount() == 0 || widget->isWindow())))
            complain(u"a role that says nothing"_s);
        const bool painted = part->role() == QAccessible::Graphic || part->role() == QAccessible::Chart ||
                             part->role() == QAccessible::ProgressBar;
        if (painted && (name.isEmpty() || (description.isEmpty() && !qobject_cast<const QLabel *>(widget))))
            complain(u"a picture that is not described"_s);
        if (!name.isEmpty() && description == name)
            complain(u"said twice"_s);
        if (!button || !button->isEnabled())
            return;
        if (!IsReached(button) && button->shortcut().isEmpty() && button->accessibleDescription().isEmpty())
            complain(u"no key leads there"_s);
    }
    /// No two buttons are called the same, and none have the same key.
    void LookForTwins()
    {
        QStringList names;
        QStringList keys;
        for (const QAbstractButton *button : m_window->findChildren<QAbstractButton *>()) {
            if (!button->isVisible())
                continue;
            names += QAccessible::queryAccessibleInterface(const_cast<QAbstractButton *>(button))
                         ->text(QAccessible::Name);
            if (!button->shortcut().isEmpty())
                keys += button->shortcut().toString();
        }
        for (const QLabel *label : m_window->findChildren<QLabel *>()) {
            if (label->isVisible() && label->buddy())
                keys += QKeySequence::mnemonic(label->text()).toString();
        }
        for (QStringList list : {names, keys}) {
            for (const QString &twin : list) {
                if (list.count(twin) > 1)
                    m_problems += u"two of "_s + twin;
            }
        }
    }

    template <typename Window>
    QWidget *ShowLesson()
    {
        auto *window = new Window(*m_navigator, m_owner.get());
        if constexpr (std::is_base_of_v<DrillWindow, Window>)
            window->ShowDrill();
        else if constexpr (std::is_same_v<Window, Frm_BeginTest>)
            window->ShowTest(true);
        else
            window->ShowTest();
        return window;
    }

    template <typename Window, typename... Arguments>
    void Add(const QString &name, void (*prepare)(Window &), Arguments... arguments)
    {
        m_makers[name] = [=] {
            auto *window = new Window(arguments..., nullptr);
            prepare(*window);
            return window;
        };
    }

    void AddMakers()
    {
        m_makers[u"menu"_s] = [this] {
            auto *menu = new Frm_Main(*m_navigator);
            menu->ShowMenu();
            return menu;
        };
        m_makers[u"login"_s] = [] { return new DlgUr_UserLogin(nullptr); };
        for (const auto buttons : {MessageButtons::Ok, MessageButtons::YesNo})
            m_makers[u"message %1"_s.arg(int(buttons))] = [buttons] {
                auto *box = new Dlg_MessageBox(nullptr);
                box->CreateMessage(u"A message"_s, u"Quorvex"_s, MessageIcon::Question, buttons);
                return box;
            };
        m_makers[u"help"_s] = [] {
            const HelpBook book(Public_Function::ProductPath(qEnvironmentVariable("QUORVEX_INSTALL")) +
                                u"\\Quorvex.chm"_s);
            return new DlgHelp(book, u"Frm_Main"_s, nullptr);
        };
        m_makers[u"junior"_s] = [this] { return ShowLesson<frmEn_KeyTrain_Basic>(); };
        m_makers[u"senior"_s] = [this] { return ShowLesson<frmEn_KeyTrain_Advanced>(); };
        m_makers[u"word drill"_s] = [this] { return ShowLesson<frmEn_WordTrain>(); };
        m_makers[u"text drill"_s] = [this] { return ShowLesson<frmEn_ArticleTrain>(); };
        m_makers[u"keypad"_s] = [this] { return ShowLesson<frmEn_NumPad>(); };
        m_makers[u"speed test"_s] = [this] { return ShowLesson<frmTest>(); };
        m_makers[u"free typing"_s] = [this] { return ShowLesson<frmFreeType>(); };
        m_makers[u"placement"_s] = [this] { return ShowLesson<Frm_BeginTest>(); };
        Add<DlgEn_KeyLesson>(u"key lesson"_s, [](auto &dialog) { dialog.ShowKeyLesson(); });
        m_makers[u"word lesson"_s] = [] { return new DlgEn_WordLesson(nullptr); };
        m_makers[u"text lesson"_s] = [] { return new DlgEn_ArticleLesson(nullptr); };
        m_makers[u"key drill settings"_s] = [] { return new DlgEn_KeyTrainSetting(nullptr); };
        Add<DlgEn_WordTrainSetting>(u"word drill settings"_s,
                                    [](auto &dialog) { dialog.SetShowExplanation(1, true); });
        m_makers[u"text drill settings"_s] = [] { return new DlgEn_ArticleTrainSetting(nullptr); };
        m_makers[u"test text"_s] = [] { return new DlgSelLsn(Shared().InstallDir, nullptr); };
        m_makers[u"printed text"_s] = [] { return new DlgTestSelect(nullptr); };
        Add<DlgTestSetting>(u"test settings"_s, [](auto &dialog) {
            dialog.SetDisplayMode(0);
            dialog.SetEndOption(1, 10);
        });
        Add<DlgTestResult>(u"test result"_s, [](auto &dialog) {
            const KTest test;
            dialog.CalChartData(&test, {});
            dialog.SelectChart(0);
        });
        m_makers[u"placement question"_s] = [] { return new DlgUr_IfBeginTest(nullptr); };
        Add<DlgUr_BeginTestResult>(
            u"placement result"_s, [](auto &dialog) { dialog.SetSpeed_Veracity(30, 90); }, true);
        m_makers[u"top list"_s] = [] { return new DlgHighScore(nullptr); };
        for (int tab = 0; tab < 7; ++tab)
            m_makers[u"records %1"_s.arg(tab)] = [tab] {
                auto *window = new FrmUr_Manage(nullptr);
                window->findChildren<QButtonGroup *>().constFirst()->button(tab)->click();
                return window;
            };
    }

    QMap<QString, std::function<QWidget *()>> m_makers;
    std::optional<FakeServices> m_services;
    std::optional<SkinnedInstall> m_install;
    std::optional<FakeNavigator> m_navigator;
    std::optional<FakeAnswers> m_answers;
    std::unique_ptr<QWidget> m_owner;
    QPointer<QWidget> m_window;
    QSet<QWidget *> m_reached;
    QStringList m_problems;
};

QTEST_MAIN(tst_Access)
#include "tst_Access.moc"
