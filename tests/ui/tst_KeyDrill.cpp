#include "support/KeyDrillTest.h"
#include "ui/widgets/HeldGround.h"
#include "ui/widgets/StatusLabel.h"

#include <QPainter>
#include <optional>

using namespace Qt::Literals::StringLiterals;

/// What the junior key drill does with keys, and what it shows.
class tst_KeyDrill : public KeyDrillTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { SetUp(); }
    void cleanup() { TearDown(); }

    void OpensWhereItWasLeft()
    {
        using Row = std::array<QString, 3>; // stored index, group, progress
        for (const auto &[index, group, progress] :
             {Row{QString(), u"as"_s, u"0 %"_s}, Row{u"2"_s, u"1!"_s, u"50 %"_s},
              Row{u"4"_s, u"as"_s, u"0 %"_s}, Row{u"x"_s, u"as"_s, u"0 %"_s}}) {
            Open(index);
            QCOMPARE(Keys(), group);
            QCOMPARE(Shown(), QStringList({u"0:00:00"_s, u"0KPM"_s, u"0%"_s, progress}));
            QCOMPARE(Text("labLessonMsg"), u"Home row"_s);
            QCOMPARE(Text("labPromptMsg"), u"Input by the current key suggested"_s);
            QVERIFY(!IsRunning());
            Leave();
        }
        QVERIFY(m_messages->texts.isEmpty());
    }

    void JudgesKeysAndTellsWhatToType()
    {
        Open();
        QCOMPARE(Cap(0), u"A: type this key now"_s);
        QCOMPARE(Keyboard(), u"Next key: A, left little finger"_s);
        Type(u"a"_s);
        QCOMPARE(Cap(0) + u' ' + Cap(1), u"A: typed S: type this key now"_s);
        QCOMPARE(State("picActivateFinger"), u"left ring finger"_s);
        Type(u"sq"_s);
        QCOMPARE(Text("labPromptMsg"), u"Input by the current key suggested"_s);
        QCOMPARE(Keyboard(), u"Next key: Right Shift and D, left middle finger"_s);
        Type(u"d"_s);
        QCOMPARE(Text("labPromptMsg"), u"Suspended by PAUSE/BREAK"_s);
        Type(u"F!"_s); // 1 is expected
        m_services->clock.Move(6.6);
        QCOMPARE(Status(), QStringList({u"0:00:07"_s, u"51KPM"_s, u"66%"_s, u"50 %"_s}));
        for (const auto key : {Qt::Key_Backspace, Qt::Key_Return, Qt::Key_Escape})
            Press(key);
        QVERIFY(m_window->isVisible());
        QCOMPARE(Status().at(1), u"77KPM"_s);
    }

    void PassesOverKeysThatTypeNothing()
    {
        Open();
        for (const auto key :
             {Qt::Key_Insert, Qt::Key_Delete, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End,
              Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Control, Qt::Key_Tab}) {
            Press(key);
            QVERIFY2(!IsRunning() && m_window->hasFocus(), qPrintable(QKeySequence(key).toString()));
        }
        Press(Qt::Key_A, Qt::ControlModifier);
        QVERIFY(!IsRunning());
        // Others begin the practice, yet count as no character.
        for (const auto key :
             {Qt::Key_Shift, Qt::Key_Alt, Qt::Key_CapsLock, Qt::Key_NumLock, Qt::Key_F5, Qt::Key_VolumeUp}) {
            Press(key);
            QVERIFY2(IsRunning() && m_window->hasFocus(), qPrintable(QKeySequence(key).toString()));
        }
        Press(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
        Type(u"a"_s);
        m_services->clock.Move(1);
        // Tab was struck by mistake like any other key, but misses nothing.
        QCOMPARE(Status().at(1), u"120KPM"_s);
        QCOMPARE(m_services->sound.TakePlayed(), QStringList({u"Error.wav"_s, u"Type.WAV"_s}));
        Leave();
        QCOMPARE(Mistakes(), QByteArray());
    }

    void InputMethods()
    {
        Open();
        QVERIFY(m_window->inputMethodQuery(Qt::ImEnabled).toBool());
        InputMethod(u"ni"_s, {});
        QCOMPARE(Text("labPromptMsg"), u"Please switch to English input"_s);
        QCOMPARE(m_services->sound.TakePlayed(), QStringList(u"Error.wav"_s));
        InputMethod({}, {});
        InputMethod({}, u"你好"_s);
        QVERIFY(!IsRunning());

        InputMethod({}, u"A𝒳s"_s);
        QCOMPARE(Keys(), u"Df"_s);
        m_services->clock.Move(1);
        QCOMPARE(Status().mid(1, 2), QStringList({u"180KPM"_s, u"66%"_s}));
        Leave();
        QCOMPARE(Mistakes(), QByteArray("0100530100"));
    }

    void WideGroupKeepsTheKeyInSight()
    {
        const QString group = u"𝒳中"_s + QString(98, u'f');
        WriteLesson("00.txt", u"Wide\n"_s + group + u" a"_s);
        Open();
        int index = 0;
        for (const char32_t code : group.toStdU32String()) {
            const QString character = QString::fromUcs4(&code, 1);
            QCOMPARE(Cap(index), character.toUpper() + u": type this key now"_s);
            const QWidget *cap = Part(qPrintable(u"PromptKey%1"_s.arg(index++)));
            QVERIFY(Part("PromptKeys")->rect().contains(cap->geometry()));
            InputMethod({}, character);
        }
        QCOMPARE(Keys(), u"a"_s);
    }

    void PressedKeysAreSunkUntilReleased()
    {
        Open();
        const QString next = u"Next key: A, left little finger"_s;
        QTest::keyPress(m_window, Qt::Key_Shift);
        QTest::keyPress(m_window, 'k');
        QTest::keyPress(m_window, Qt::Key_A, Qt::ControlModifier); // swallowed
        QCOMPARE(Keyboard(), next + u". Pressed: Left Shift, K"_s);
        QTest::keyRelease(m_window, 'k');
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
        Open();
        QTest::qWait(50);
        qApp->installEventFilter(this);
        bool wasAnswered = false;
        m_services->sound.whenPlayed = [&] { wasAnswered = m_painted.contains(Part("PromptKey0")); };
        for (const QString &key : {u"a"_s, u"q"_s, u"s"_s}) { // the hint changes with the first two
            m_painted.clear();
            Type(key);
            if (key == u"a"_s)
                QVERIFY2(wasAnswered, "the sound came before the answer on the screen");
            QTest::qWait(20);
        }
        m_services->sound.whenPlayed = {};
        QVERIFY(m_painted.contains(Part("PromptKey0")));
        for (const auto &name :
             {"BtnClose", "labTime", "labSpeed", "labVeracity", "picProgress", "labLessonMsg"})
            QVERIFY2(!m_painted.contains(Part(name)), name);
        const QWidget *keyboard = Part("CXKeyBoard1");
        QVERIFY(m_painted[keyboard] < keyboard->width() * keyboard->height() / 12);
        QVERIFY(m_painted[m_window] < m_window->width() * m_window->height() / 16);
    }

    void StandsOnThePictureOfTheWindow()
    {
        Open();
        QImage ground(m_window->size(), QImage::Format_RGB32);
        m_window->render(&ground, {}, {}, QWidget::RenderFlags());
        const QImage shown = m_window->grab().toImage();
        for (const auto &name :
             {"labTime", "labPromptMsg", "picProgress", "CXKeyBoard1", "picActivateFinger"}) {
            const QPoint corner = Part(name)->geometry().topRight();
            QCOMPARE(shown.pixelColor(corner), ground.pixelColor(corner));
        }
    }

    void FollowsThePictureOfTheWindow()
    {
        QWidget window;
        window.resize(100, 50);
        StatusLabel label(&window);
        label.resize(50, 20);
        window.installEventFilter(this);
        for (const auto &color : {Qt::red, Qt::blue}) {
            m_color = color;
            HeldGround::RenewAll();
            QCOMPARE(window.grab().toImage().pixelColor(1, 1), QColor(color));
        }
        m_color.reset();
    }

private:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            for (const QRect &rect : static_cast<QPaintEvent *>(event)->region())
                m_painted[watched] += rect.width() * rect.height();
            if (m_color) {
                QPainter(static_cast<QWidget *>(watched)).fillRect(0, 0, 100, 50, *m_color);
                return true;
            }
        }
        return false;
    }

    QHash<const QObject *, int> m_painted; // pixels
    std::optional<QColor> m_color;
};

QTEST_MAIN(tst_KeyDrill)
#include "tst_KeyDrill.moc"
