#include "ui/widgets/OnScreenKeyboard.h"

#include <QKeyEvent>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

QString Description(const OnScreenKeyboard &keyboard)
{
    QCoreApplication::processEvents();
    return keyboard.accessibleDescription();
}

} // namespace

class tst_OnScreenKeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SinksTheKeyThatWasStruck()
    {
        // Key, what it types, its scan code as X numbers them (0: unknown), what is sunk, modifiers.
        using Row = std::tuple<int, QString, quint32, QString, Qt::KeyboardModifiers>;
        const QList<Row> rows{
            {Qt::Key_A, u"a"_s, 38, u"A"_s, {}},
            {Qt::Key_Q, u"q"_s, 38, u"Q"_s, {}}, // what was typed decides, not the place
            {Qt::Key_Exclam, u"!"_s, 10, u"1"_s, Qt::ShiftModifier},
            {0x424, u"ф"_s, 38, u"A"_s, {}}, // a character that is not drawn: the place
            {Qt::Key_A, {}, 0, u"A"_s, {}},
            {Qt::Key_Shift, {}, 62, u"Right Shift"_s, {}},
            {Qt::Key_Control, {}, 37, u"Left Ctrl"_s, {}},
            {Qt::Key_AltGr, {}, 108, u"Right Alt"_s, {}},
            {Qt::Key_Backspace, u"\b"_s, 22, u"Backspace"_s, {}},
            {Qt::Key_Space, u" "_s, 65, u"Space"_s, {}},
            {Qt::Key_5, u"5"_s, 84, {}, Qt::KeypadModifier},
            {Qt::Key_Enter, u"\r"_s, 104, {}, Qt::KeypadModifier},
            {Qt::Key_F5, {}, 71, {}, {}},
        };
        for (const auto &[key, text, scanCode, sunk, modifiers] : rows) {
            OnScreenKeyboard keyboard(nullptr);
            const QKeyEvent press(QEvent::KeyPress, key, modifiers, scanCode, 0, 0, text);
            keyboard.KeyDown(KeyStrokeOf(press));
            keyboard.KeyDown(KeyStrokeOf(press)); // it repeats
            QCOMPARE(Description(keyboard).remove(u"Pressed: "_s), sunk);
            // Released with another modifier the key types something else, and is still the same key.
            keyboard.KeyUp(KeyStrokeOf(
                QKeyEvent(QEvent::KeyRelease, scanCode != 0 ? 0 : key, modifiers, scanCode, 0, 0, u"x"_s)));
            QCOMPARE(Description(keyboard), QString());
        }
    }

    void TypesCharacters()
    {
        using Row = std::tuple<QString, Qt::KeyboardModifiers, QString>;
        const auto altGr = Qt::ControlModifier | Qt::AltModifier; // as some systems report it
        for (const auto &[text, modifiers, typed] :
             {Row{u"a"_s, {}, u"a"_s}, Row{u"𝒳"_s, {}, u"𝒳"_s}, Row{u"\u001b"_s, {}, u"\u001b"_s},
              Row{u"\u007f"_s, {}, {}}, Row{u"\u0001"_s, Qt::ControlModifier, {}},
              Row{u"1"_s, Qt::ControlModifier, {}}, Row{u"a"_s, Qt::AltModifier, {}},
              Row{u"a"_s, Qt::MetaModifier, {}}, Row{u"€"_s, altGr, u"€"_s}, Row{u"\b"_s, altGr, {}}}) {
            const QKeyEvent event(QEvent::KeyPress, Qt::Key_unknown, modifiers, text);
            QCOMPARE(QString::fromStdU32String(TypedCharacters(event)), typed);
        }
    }

    void ChecksAgainstThePromptOfTheMoment()
    {
        OnScreenKeyboard keyboard(nullptr);
        QSignalSpy checked(&keyboard, &OnScreenKeyboard::KeyChecked);
        const auto check = [&](char32_t typed, const QString &next) {
            keyboard.Check(typed);
            keyboard.SetPromptKey(next); // while the drill handles the character
            keyboard.CharacterHandled();
            return checked.takeLast();
        };
        keyboard.SetPromptKey(u"A"_s);
        QCOMPARE(check(U'a', u"1"_s), QVariantList({u"a"_s, true}));
        QCOMPARE(check(U'!', u"A"_s), QVariantList({u"!"_s, false}));
        keyboard.SetDisplayOption(1); // now the case counts
        QCOMPARE(check(U'a', u"A"_s), QVariantList({u"a"_s, false}));
        QCOMPARE(check(U'A', u"A"_s), QVariantList({u"A"_s, true}));
        keyboard.CharacterHandled();
        QVERIFY(checked.isEmpty());
    }

    void LightsShiftWhereItIsNeeded()
    {
        OnScreenKeyboard keyboard(nullptr);
        using Row = std::pair<QString, QString>;
        for (const auto &[prompt, shows] : {Row{u"k"_s, u"Next key: K, right middle finger"_s},
                                            Row{u"K"_s, u"Next key: Left Shift and K, right middle finger"_s},
                                            Row{u"%"_s, u"Next key: Right Shift and 5, left index finger"_s},
                                            Row{u"中"_s, {}}, Row{u"𝒳"_s, {}}, Row{}}) {
            keyboard.SetPromptKey(u"x"_s);
            keyboard.SetPromptKey(prompt);
            QCOMPARE(keyboard.PromptKey(), prompt);
            QCOMPARE(Description(keyboard), shows);
        }
    }
};

QTEST_MAIN(tst_OnScreenKeyboard)
#include "tst_OnScreenKeyboard.moc"
