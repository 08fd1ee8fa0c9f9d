#include "support/KeyDrillTest.h"

#include <QInputMethodEvent>
#include <QPaintEvent>

using namespace Qt::Literals::StringLiterals;

/// What the junior key drill does with keys, and what it shows.
class tst_KeyDrill : public KeyDrillTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { SetUp(); }
    void cleanup() { TearDown(); }

    void OpensWhereItWasLeft_data()
    {
        QTest::addColumn<QString>("index");
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("progress");
        QTest::newRow("a new user") << QString() << u"as"_s << u"0 %"_s;
        QTest::newRow("in the middle") << u"2"_s << u"1!"_s << u"50 %"_s;
        QTest::newRow("beyond the end") << u"4"_s << u"as"_s << u"0 %"_s;
        QTest::newRow("no number") << u"x"_s << u"as"_s << u"0 %"_s;
    }

    void OpensWhereItWasLeft()
    {
        QFETCH(QString, index);
        if (!index.isNull())
            Store(u"KeyTrain_Index"_s, index);
        Open();
        QCOMPARE(Text(u"labLessonMsg"_s), u"Home row"_s);
        QTEST(Keys(), "group");
        QTEST(Part(u"picProgress"_s)->toolTip(), "progress");
        QCOMPARE(Text(u"labTime"_s), u"0:00:00"_s);
        QCOMPARE(Text(u"labSpeed"_s), u"0KPM"_s);
        QCOMPARE(Text(u"labVeracity"_s), u"0%"_s);
        QCOMPARE(Text(u"labPromptMsg"_s), u"Input by the current key suggested"_s);
        QVERIFY(!IsRunning());
        QVERIFY(m_messages->texts.isEmpty());
        for (const QAbstractButton *button : m_drill->findChildren<QAbstractButton *>()) {
            QCOMPARE(button->focusPolicy(), Qt::NoFocus);
            QVERIFY(!button->accessibleName().isEmpty());
        }
    }

    void TellsWhatToType()
    {
        Open();
        QCOMPARE(Cap(0), u"A: type this key now"_s);
        QCOMPARE(Cap(1), u"S: to type"_s);
        QCOMPARE(Keyboard(), u"Next key: A, left little finger"_s);
        QCOMPARE(Part(u"picActivateFinger"_s)->accessibleDescription(), u"left little finger"_s);
        Type(u"a"_s);
        QCOMPARE(Cap(0), u"A: typed"_s);
        QCOMPARE(Cap(1), u"S: type this key now"_s);
        QCOMPARE(Part(u"picActivateFinger"_s)->accessibleDescription(), u"left ring finger"_s);
        Type(u"s"_s);
        QCOMPARE(Keys(), u"Df"_s);
        QCOMPARE(Cap(0), u"D: type this key now"_s);
        QCOMPARE(Keyboard(), u"Next key: Right Shift and D, left middle finger"_s);
        Type(u"df1"_s);
        QCOMPARE(Keyboard(), u"Next key: Right Shift and 1, left little finger"_s);
    }

    void JudgesKeys()
    {
        Open();
        Type(u"asq"_s); // D is expected
        QVERIFY(IsRunning());
        QCOMPARE(Text(u"labPromptMsg"_s), u"Input by the current key suggested"_s);
        m_services->clock.Move(0.4);
        QCOMPARE(Status(), QStringList({u"0:00:01"_s, u"180KPM"_s, u"66%"_s, u"25 %"_s}));
        Type(u"d"_s);
        QCOMPARE(Text(u"labPromptMsg"_s), u"Suspended by PAUSE/BREAK"_s);
        Type(u"F!"_s); // 1 is expected
        m_services->clock.Move(6.6);
        QCOMPARE(Status(), QStringList({u"0:00:07"_s, u"51KPM"_s, u"66%"_s, u"50 %"_s}));
        QTest::keyClick(m_drill, Qt::Key_Backspace);
        QTest::keyClick(m_drill, Qt::Key_Return);
        QTest::keyClick(m_drill, Qt::Key_Escape);
        QVERIFY(m_drill->isVisible());
        QCOMPARE(Status().at(1), u"77KPM"_s);
    }

    void TakesKeysThatTypeNothing_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Shift") << int(Qt::Key_Shift);
        QTest::newRow("Alt, as of Alt+Tab") << int(Qt::Key_Alt);
        QTest::newRow("Caps Lock") << int(Qt::Key_CapsLock);
        QTest::newRow("Num Lock") << int(Qt::Key_NumLock);
        QTest::newRow("F5") << int(Qt::Key_F5);
        QTest::newRow("louder") << int(Qt::Key_VolumeUp);
    }

    void TakesKeysThatTypeNothing()
    {
        QFETCH(int, key);
        Open();
        QTest::keyClick(m_drill, static_cast<Qt::Key>(key));
        QVERIFY(!IsRunning());
        Type(u"a"_s);
        QTest::keyClick(m_drill, static_cast<Qt::Key>(key));
        m_services->clock.Move(1);
        QCOMPARE(Status().at(1), u"60KPM"_s);
        QCOMPARE(m_services->sound.TakePlayed(), QStringList(u"Type.WAV"_s));
    }

    void SwallowsKeys_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<int>("keys"); // that count
        for (const auto key : {Qt::Key_Insert, Qt::Key_Delete, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home,
                               Qt::Key_End, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down})
            QTest::addRow("editing key %x", key) << int(key) << 0 << 0;
        QTest::newRow("Ctrl alone") << int(Qt::Key_Control) << 0 << 0;
        QTest::newRow("Ctrl+A") << int(Qt::Key_A) << int(Qt::ControlModifier) << 0;
        QTest::newRow("Ctrl+Shift+A") << int(Qt::Key_A) << int(Qt::ControlModifier | Qt::ShiftModifier) << 0;
        // Tab is struck by mistake like any other key, but starts nothing and misses nothing.
        QTest::newRow("Tab") << int(Qt::Key_Tab) << 0 << 1;
    }

    void SwallowsKeys()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        QFETCH(int, keys);
        Open();
        QTest::keyClick(m_drill, static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
        QVERIFY(!IsRunning());
        QVERIFY(m_drill->hasFocus());
        QCOMPARE(m_services->sound.TakePlayed().size(), keys);
        Type(u"a"_s);
        m_services->clock.Move(1);
        QCOMPARE(Status().at(1), QString::number(60 * (1 + keys)) + u"KPM"_s);
        m_drill->close();
        QVERIFY(m_install->Read(u"Users/Ann/MistakeEN.Dat"_s).isEmpty());
    }

    void PausesAndResumes()
    {
        Open();
        Type(u"a"_s);
        m_services->clock.Move(10);
        QTest::keyClick(m_drill, Qt::Key_Pause);
        QVERIFY(!IsRunning());
        QCOMPARE(Text(u"labPromptMsg"_s), u"Input by the current key suggested"_s);
        QCOMPARE(Text(u"labTime"_s), u"0:00:00"_s); // pausing shows nothing new
        m_services->clock.Move(1000);
        Type(u"s"_s);
        m_services->clock.Move(2);
        QCOMPARE(Status().mid(0, 3), QStringList({u"0:00:12"_s, u"10KPM"_s, u"100%"_s}));
        QTest::keyClick(m_drill, Qt::Key_Pause);
        QTest::keyClick(m_drill, Qt::Key_Pause);
        QVERIFY(IsRunning());
    }

    void PlaysSounds_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QStringList>("played");
        QTest::newRow("none") << u"0"_s << QStringList();
        QTest::newRow("keys") << u"1"_s << QStringList({u"Type.WAV"_s, u"Error.wav"_s});
        QTest::newRow("music") << u"2"_s << QStringList({u"0.wav"_s, u"Error.wav"_s});
        QTest::newRow("not set") << QString() << QStringList({u"Type.WAV"_s, u"Error.wav"_s});
    }

    void PlaysSounds()
    {
        QFETCH(QString, mode);
        if (!mode.isNull())
            Store(u"EnSound"_s, mode, u"Main"_s);
        Open();
        Type(u"aq"_s);
        QTEST(m_services->sound.TakePlayed(), "played");
    }

    void InputMethods()
    {
        Open();
        const auto send = [this](const QString &preedit, const QString &commit) {
            QInputMethodEvent event(preedit, {});
            event.setCommitString(commit);
            QCoreApplication::sendEvent(m_drill, &event);
        };
        QVERIFY(m_drill->inputMethodQuery(Qt::ImEnabled).toBool());
        send(u"ni"_s, {});
        QCOMPARE(Text(u"labPromptMsg"_s), u"Please switch to English input"_s);
        QCOMPARE(m_services->sound.TakePlayed(), QStringList(u"Error.wav"_s));
        QVERIFY(!IsRunning());
        send({}, {});
        send({}, u"你好"_s);
        QVERIFY(!IsRunning());

        send({}, u"A𝒳s"_s);
        QCOMPARE(Keys(), u"Df"_s);
        m_services->clock.Move(1);
        QCOMPARE(Status().mid(1, 2), QStringList({u"180KPM"_s, u"66%"_s}));
        m_drill->close();
        QCOMPARE(m_install->Read(u"Users/Ann/MistakeEN.Dat"_s), QByteArray("\x01\x00S\x01\x00", 5));
    }

    void WideGroupKeepsTheKeyInSight()
    {
        const QString group = u"𝒳中"_s + QString(98, u'f');
        WriteLesson(u"00.txt"_s, u"Wide\n"_s + group + u" a"_s);
        Open();
        const QWidget *row = Part(u"PromptKeys"_s);
        const std::u32string characters = group.toStdU32String();
        for (int index = 0; index < 100; ++index) {
            const QWidget *cap = Part(u"PromptKey"_s + QString::number(index));
            const QString character = QString::fromUcs4(&characters[static_cast<std::size_t>(index)], 1);
            QCOMPARE(cap->accessibleName(), character.toUpper());
            QCOMPARE(cap->accessibleDescription(), u"type this key now"_s);
            QVERIFY(row->rect().contains(cap->geometry()));
            QInputMethodEvent commit;
            commit.setCommitString(character);
            QCoreApplication::sendEvent(m_drill, &commit);
        }
        QCOMPARE(Keys(), u"a"_s);
    }

    void PressedKeysAreSunkUntilReleased()
    {
        Open();
        const QString next = u"Next key: A, left little finger"_s;
        QTest::keyPress(m_drill, Qt::Key_Shift);
        QTest::keyPress(m_drill, 'k');
        QCOMPARE(Keyboard(), next + u". Pressed: Left Shift, K"_s);
        QTest::keyRelease(m_drill, 'k');
        QCOMPARE(Keyboard(), next + u". Pressed: Left Shift"_s);
        // The release goes to whatever window is active by then.
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QCOMPARE(Keyboard(), next);
    }

    void PaintsOnlyWhatChanged()
    {
        class Watcher : public QObject
        {
        public:
            bool eventFilter(QObject *watched, QEvent *event) override
            {
                auto *widget = qobject_cast<QWidget *>(watched);
                if (event->type() == QEvent::Paint && widget)
                    painted[widget] += static_cast<QPaintEvent *>(event)->region();
                return false;
            }
            QHash<QWidget *, QRegion> painted;
        } watcher;
        Open();
        QTest::qWait(50);
        m_drill->installEventFilter(&watcher);
        for (QWidget *child : m_drill->findChildren<QWidget *>())
            child->installEventFilter(&watcher);

        Type(u"a"_s); // the hint changes with this first key only
        QTest::qWait(20);
        Type(u"q"_s);
        QTest::qWait(20);
        watcher.painted.clear();
        QTest::keyClick(m_drill, 's');
        QTest::qWait(20);
        QVERIFY(watcher.painted.contains(Part(u"PromptKey0"_s)));
        for (const auto &name :
             {"BtnClose", "labTime", "labSpeed", "labVeracity", "picProgress", "labLessonMsg"})
            QVERIFY2(!watcher.painted.contains(Part(QLatin1StringView(name))), name);
        const auto area = [](const QRegion &region) {
            int pixels = 0;
            for (const QRect &rect : region)
                pixels += rect.width() * rect.height();
            return pixels;
        };
        const QWidget *keyboard = Part(u"CXKeyBoard1"_s);
        QVERIFY(area(watcher.painted.value(Part(u"CXKeyBoard1"_s))) <
                keyboard->width() * keyboard->height() / 12);
        QVERIFY(area(watcher.painted.value(m_drill)) < m_drill->width() * m_drill->height() / 16);
    }
};

QTEST_MAIN(tst_KeyDrill)
#include "tst_KeyDrill.moc"
