#include "ui/widgets/OnScreenKeyboard.h"

#include <QKeyEvent>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_OnScreenKeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SinksTheKeyThatWasStruck_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("text");
        QTest::addColumn<quint32>("scanCode"); // as X numbers them; 0: unknown
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<QString>("sunk");
        const auto row = [](const char *name, int key, const QString &text, quint32 scanCode, int modifiers,
                            const QString &sunk) {
            QTest::newRow(name) << key << text << scanCode << modifiers << sunk;
        };
        constexpr int shift = Qt::ShiftModifier;
        row("letter", Qt::Key_A, u"a"_s, 38, 0, u"A"_s);
        row("what was typed decides, not the place", Qt::Key_Q, u"q"_s, 38, 0, u"Q"_s);
        row("shifted", Qt::Key_Exclam, u"!"_s, 10, shift, u"1"_s);
        row("a character that is not drawn: the place", 0x424, u"ф"_s, 38, 0, u"A"_s);
        row("without a scan code", Qt::Key_A, {}, 0, 0, u"A"_s);
        row("right Shift", Qt::Key_Shift, {}, 62, 0, u"Right Shift"_s);
        row("left Ctrl", Qt::Key_Control, {}, 37, 0, u"Left Ctrl"_s);
        row("AltGr", Qt::Key_AltGr, {}, 108, 0, u"Right Alt"_s);
        row("Backspace", Qt::Key_Backspace, u"\b"_s, 22, 0, u"Backspace"_s);
        row("space", Qt::Key_Space, u" "_s, 65, 0, u"Space"_s);
        row("keypad", Qt::Key_5, u"5"_s, 84, Qt::KeypadModifier, {});
        row("keypad Enter", Qt::Key_Enter, u"\r"_s, 104, Qt::KeypadModifier, {});
        row("F5", Qt::Key_F5, {}, 71, 0, {});
    }

    void SinksTheKeyThatWasStruck()
    {
        QFETCH(int, key);
        QFETCH(QString, text);
        QFETCH(quint32, scanCode);
        QFETCH(int, modifiers);
        QFETCH(QString, sunk);
        OnScreenKeyboard keyboard(nullptr);
        const auto send = [&](QEvent::Type type, int code, const QString &typed) {
            return KeyStrokeOf(
                QKeyEvent(type, code, Qt::KeyboardModifiers(modifiers), scanCode, 0, 0, typed));
        };
        keyboard.KeyDown(send(QEvent::KeyPress, key, text));
        keyboard.KeyDown(send(QEvent::KeyPress, key, text)); // it repeats
        QCOMPARE(keyboard.accessibleDescription(), sunk.isEmpty() ? QString() : u"Pressed: "_s + sunk);
        // Released with another modifier the key types something else, and is still the same key.
        keyboard.KeyUp(send(QEvent::KeyRelease, scanCode != 0 ? int(Qt::Key_unknown) : key, u"x"_s));
        QCOMPARE(keyboard.accessibleDescription(), QString());
    }

    void TypesCharacters_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<QString>("typed");
        const int ctrl = Qt::ControlModifier;
        const int alt = Qt::AltModifier;
        QTest::newRow("letter") << u"a"_s << 0 << u"a"_s;
        QTest::newRow("outside the basic plane") << u"𝒳"_s << 0 << u"𝒳"_s;
        QTest::newRow("Escape") << u"\u001b"_s << 0 << u"\u001b"_s;
        QTest::newRow("Delete") << u"\u007f"_s << 0 << QString();
        QTest::newRow("Ctrl+A") << u"\u0001"_s << ctrl << QString();
        QTest::newRow("Ctrl+1") << u"1"_s << ctrl << QString();
        QTest::newRow("Alt+A") << u"a"_s << alt << QString();
        QTest::newRow("Meta+A") << u"a"_s << int(Qt::MetaModifier) << QString();
        QTest::newRow("AltGr reported as Ctrl+Alt") << u"€"_s << (ctrl | alt) << u"€"_s;
        QTest::newRow("Ctrl+Alt+Backspace") << u"\b"_s << (ctrl | alt) << QString();
    }

    void TypesCharacters()
    {
        QFETCH(QString, text);
        QFETCH(int, modifiers);
        const QKeyEvent event(QEvent::KeyPress, Qt::Key_unknown, Qt::KeyboardModifiers(modifiers), text);
        QTEST(QString::fromStdU32String(TypedCharacters(event)), "typed");
    }

    void ChecksAgainstThePromptOfTheMoment()
    {
        OnScreenKeyboard keyboard(nullptr);
        QSignalSpy checked(&keyboard, &OnScreenKeyboard::KeyChecked);
        keyboard.SetPromptKey(u"A"_s);
        keyboard.Check(U'a');
        QVERIFY(checked.isEmpty());
        keyboard.SetPromptKey(u"1"_s); // while the drill handles the character
        keyboard.CharacterHandled();
        QCOMPARE(checked.takeFirst(), QVariantList({u"a"_s, true}));
        keyboard.Check(U'!');
        keyboard.CharacterHandled();
        QCOMPARE(checked.takeFirst(), QVariantList({u"!"_s, false}));
        keyboard.CharacterHandled();
        QVERIFY(checked.isEmpty());
    }

    void TheCaseCountsWhereItIsAskedFor()
    {
        OnScreenKeyboard keyboard(nullptr);
        QSignalSpy checked(&keyboard, &OnScreenKeyboard::KeyChecked);
        keyboard.SetPromptKey(u"A"_s);
        keyboard.SetDisplayOption(1);
        for (const char32_t typed : {U'a', U'A'}) {
            keyboard.Check(typed);
            keyboard.CharacterHandled();
        }
        QCOMPARE(checked.at(0).at(1).toBool(), false);
        QCOMPARE(checked.at(1).at(1).toBool(), true);
    }

    void LightsShiftWhereItIsNeeded_data()
    {
        QTest::addColumn<QString>("prompt");
        QTest::addColumn<QString>("shows");
        QTest::newRow("small letter") << u"k"_s << u"Next key: K, right middle finger"_s;
        QTest::newRow("capital") << u"K"_s << u"Next key: Left Shift and K, right middle finger"_s;
        QTest::newRow("sign") << u"%"_s << u"Next key: Right Shift and 5, left index finger"_s;
        QTest::newRow("not on the keyboard") << u"中"_s << QString();
        QTest::newRow("outside the basic plane") << u"𝒳"_s << QString();
        QTest::newRow("nothing") << QString() << QString();
    }

    void LightsShiftWhereItIsNeeded()
    {
        QFETCH(QString, prompt);
        OnScreenKeyboard keyboard(nullptr);
        keyboard.SetPromptKey(u"x"_s);
        keyboard.SetPromptKey(prompt);
        QCOMPARE(keyboard.PromptKey(), prompt);
        QTEST(keyboard.accessibleDescription(), "shows");
    }
};

QTEST_MAIN(tst_OnScreenKeyboard)
#include "tst_OnScreenKeyboard.moc"
