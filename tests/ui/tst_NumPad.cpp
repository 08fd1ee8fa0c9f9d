#include "support/KeyDrillTest.h"
#include "ui/drills/frmEn_NumPad.h"

using namespace Qt::Literals::StringLiterals;

/// The numeric keypad drill. Keys come as X sends them: a key's scan code is its place on the keyboard.
class tst_NumPad : public KeyDrillTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        SetUp();
        m_install->Write(LessonFile, "Middle row\r\n45 6\r\n x5 +\r\n");
    }
    void cleanup() { TearDown(); }

    void ShowsKeyAndFinger()
    {
        Open<frmEn_NumPad>();
        QCOMPARE(Text("labLessonMsg"), u"Middle row"_s);
        QCOMPARE(Keypad(), u"Next key: 4, right index finger"_s);
        using Row = std::pair<QString, QString>; // what is typed, then the key and the finger
        for (const auto &[typed, next] :
             {Row{u"4"_s, u"5, right middle finger"_s}, Row{u"9"_s, u"5, right middle finger"_s},
              Row{u"5"_s, u"6, right ring finger"_s}, Row{u"6"_s, {}}, // no key of the keypad
              Row{u"X"_s, u"5, right middle finger"_s}, Row{u"5"_s, u"+, right little finger"_s}}) {
            Type(typed);
            QCOMPARE(Keypad(), next.isEmpty() ? next : u"Next key: "_s + next);
            QCOMPARE(State("picActivateFinger"), next.mid(3));
        }
        // The right hand stands alone, in its place.
        QCOMPARE(Part("picActivateFinger")->width(), 525 - 320);
        m_services->clock.Move(2);
        QCOMPARE(Status(), QStringList({u"0:00:02"_s, u"180KPM"_s, u"83%"_s, u"75 %"_s}));
        Leave();
        QCOMPARE(Mistakes(), QByteArray()); // nothing is recorded of what was missed
    }

    void OnlyKeysOfTheKeypadSink()
    {
        Open<frmEn_NumPad>();
        // Key, text, scan code, modifiers, what is sunk.
        using Row = std::tuple<int, QString, quint32, Qt::KeyboardModifiers, QString>;
        for (const auto &[key, text, scanCode, modifiers, sunk] :
             {Row{Qt::Key_5, u"5"_s, 84, Qt::KeypadModifier, u"5"_s}, Row{Qt::Key_5, u"5"_s, 14, {}, {}},
              Row{Qt::Key_Plus, u"+"_s, 86, Qt::KeypadModifier, u"+"_s},
              Row{Qt::Key_Comma, u","_s, 91, Qt::KeypadModifier, u"."_s}, // on a German keyboard
              Row{Qt::Key_Slash, u"/"_s, 106, Qt::KeypadModifier, u"/"_s},
              Row{Qt::Key_Asterisk, u"*"_s, 63, Qt::KeypadModifier, u"*"_s},
              Row{Qt::Key_7, u"7"_s, 0, Qt::KeypadModifier, u"7"_s}, // where no scan codes are known
              Row{Qt::Key_Enter, u"\r"_s, 104, Qt::KeypadModifier, {}}, Row{Qt::Key_NumLock, {}, 77, {}, {}},
              Row{Qt::Key_Slash, u"/"_s, 61, {}, {}}}) {
            Send(QEvent::KeyPress, key, text, scanCode, modifiers);
            QCOMPARE(Keypad().section(u"Pressed: "_s, 1), sunk);
            Send(QEvent::KeyRelease, key, text, scanCode, modifiers);
            QVERIFY(!Keypad().contains(u"Pressed"_s));
        }
    }

    void SaysThatNumLockIsOff()
    {
        Open<frmEn_NumPad>();
        const QString off = u"Num Lock is off: press Num Lock"_s;
        const QString usual = Text("labPromptMsg");
        using Row = std::tuple<int, quint32, Qt::KeyboardModifiers, bool>;
        for (const auto &[key, scanCode, modifiers, said] :
             {Row{Qt::Key_Home, 79, Qt::KeypadModifier, true},
              Row{Qt::Key_Clear, 84, Qt::KeypadModifier, true},
              Row{Qt::Key_Insert, 90, Qt::KeypadModifier, true}, Row{Qt::Key_Left, 83, {}, true},
              Row{Qt::Key_Down, 0, Qt::KeypadModifier, true}, Row{Qt::Key_Home, 110, {}, false},
              // Shift makes the keypad move although Num Lock is on.
              Row{Qt::Key_Home, 79, Qt::KeypadModifier | Qt::ShiftModifier, false}}) {
            Send(QEvent::KeyPress, key, {}, scanCode, modifiers);
            QCOMPARE(Text("labPromptMsg"), said ? off : usual);
            QVERIFY(!IsRunning() && !Keypad().contains(u"Pressed"_s));
            Send(QEvent::KeyPress, Qt::Key_9, u"9"_s, 81, Qt::KeypadModifier);
            Send(QEvent::KeyRelease, Qt::Key_9, u"9"_s, 81, Qt::KeypadModifier);
            QCOMPARE(Text("labPromptMsg"), usual);
            Press(Qt::Key_Pause);
        }
        m_services->clock.Move(1);
        QCOMPARE(Status().mid(1, 2), QStringList({u"420KPM"_s, u"0%"_s})); // only the nines
    }

    void GoesOnWhereItWasLeftAndStoresOnlyThat()
    {
        Store(u"EnSound"_s, u"0"_s, u"Main"_s);
        Store(u"NUMPADTRAIN_INDEX"_s, u"1"_s);
        Open<frmEn_NumPad>();
        QCOMPARE(Keys(), u"6"_s);
        Type(u"6"_s);
        Click("btnToStandardKB");
        QTRY_VERIFY(m_window.isNull());
        QCOMPARE(m_navigator->opened, QList<DrillKind>({DrillKind::KeyJunior}));
        QCOMPARE(Stored(u"NumPadTrain_Index"_s), u"2"_s);
        QVERIFY(
            Stored(u"NumPadTrain_FileName"_s).endsWith(u"\\Data\\English\\T_Character\\Numpad\\00.txt"_s));
        QCOMPARE(Stored(u"EnSound"_s, u"Main"_s), u"0"_s);
        QCOMPARE(Stored(u"KeyTrain_Index"_s), u"-"_s);
        Open<frmEn_NumPad>();
        QCOMPARE(Keys(), u"x5"_s);
    }

private:
    static constexpr auto LessonFile = "Data/English/T_Character/Numpad/00.txt"_L1;

    QString Keypad() const
    {
        QCoreApplication::processEvents();
        return State("XNumBoard1");
    }
    void Send(QEvent::Type type, int key, const QString &text, quint32 scanCode,
              Qt::KeyboardModifiers modifiers)
    {
        QKeyEvent event(type, key, modifiers, scanCode, 0, 0, text);
        QCoreApplication::sendEvent(m_window, &event);
    }
};

QTEST_MAIN(tst_NumPad)
#include "tst_NumPad.moc"
