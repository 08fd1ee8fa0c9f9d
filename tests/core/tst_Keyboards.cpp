#include "core/drills/AnsiKeyboard.h"
#include "core/drills/FingerTable.h"
#include "core/drills/KeypadKeys.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// The main keyboard and the keypad: what types a character, with which finger, and where it is drawn.
class tst_Keyboards : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryPrintableCharacterHasItsKeyAndTheOtherHandsShift()
    {
        const QString leftHand = u"~!@#$%QWERTASDFGZXCVB"_s;
        const QString rightHand = u"^&*()_+YUIOP{}|HJKL:\"NM<>?"_s;
        for (char16_t code = 0; code < 0xFFFF; ++code) {
            const auto stroke = AnsiKeyboard::StrokeFor(QChar(code));
            QCOMPARE(stroke.has_value(), code >= u' ' && code <= u'~');
            if (!stroke)
                continue;
            const AnsiKey &key = AnsiKeyboard::Keys().at(stroke->key);
            QCOMPARE(stroke->shiftKey ? key.shifted : key.plain, QChar(code));
            const QString shift =
                stroke->shiftKey ? AnsiKeyboard::Keys().at(*stroke->shiftKey).name : QString();
            QCOMPARE(shift == u"Right Shift"_s, leftHand.contains(QChar(code)));
            QCOMPARE(shift == u"Left Shift"_s, rightHand.contains(QChar(code)));
        }
    }

    void KeyCodes()
    {
        QStringList names;
        for (const int code : {65, 48, 188, 220, 16, 163, 13, 97, 112, 0}) {
            const auto index = AnsiKeyboard::KeyWithCode(code);
            names += index ? AnsiKeyboard::Keys().at(*index).name : u"none"_s;
        }
        QCOMPARE(names.join(u' '), u"A 0 , \\ Left Shift Right Ctrl Enter none none none"_s);
        int code = 96; // the full stop of the keypad has two
        for (const char32_t character : std::u32string(U"0123456789*+.-./")) {
            QVERIFY(KeypadKeys::KeyFor(character));
            QCOMPARE(KeypadKeys::KeyWithCode(code++), KeypadKeys::KeyFor(character));
        }
        for (const int none : {0, 13, 53, 95, 112, 144})
            QVERIFY(!KeypadKeys::KeyWithCode(none));
        QVERIFY(!KeypadKeys::KeyFor(U'a') && !KeypadKeys::KeyFor(U'='));
    }

    void Fingers()
    {
        // Characters, the finger's name, and where it lies in the narrow and in the wide picture.
        using Row = std::tuple<QString, QString, FingerStrip, FingerStrip>;
        for (const auto &[characters, name, narrow, wide] :
             {Row{u"Qaz`~1!"_s, u"left little finger"_s, {0, 28}, {0, 37}},
              Row{u"wSX2@"_s, u"left ring finger"_s, {28, 28}, {37, 33}},
              Row{u"EDc3#"_s, u"left middle finger"_s, {56, 34}, {73, 42}},
              Row{u"RfVTGB4$5%"_s, u"left index finger"_s, {90, 34}, {115, 45}},
              Row{u"yHNUJM6^7&"_s, u"right index finger"_s, {285, 35}, {365, 45}},
              Row{u"IK,<8*"_s, u"right middle finger"_s, {320, 33}, {410, 42}},
              Row{u"OL.>9("_s, u"right ring finger"_s, {353, 28}, {455, 36}},
              Row{u"\"P;:/?0)'[]{}-_=+\\|"_s, u"right little finger"_s, {381, 29}, {488, 37}},
              Row{u" "_s, u"thumb"_s, {124, 38}, {160, 50}}, Row{u"éß中𝒳\b"_s, {}, {}, {}}}) {
            for (const char32_t character : characters.toStdU32String()) {
                QCOMPARE(FingerTable::StripFor(character, LayoutMode::None), FingerStrip());
                QCOMPARE(FingerTable::StripFor(character, LayoutMode::Narrow), narrow);
                QCOMPARE(FingerTable::StripFor(character, LayoutMode::Wide), wide);
                const auto finger = FingerTable::FingerFor(character);
                QCOMPARE(finger ? FingerTable::NameOf(*finger) : QString(), name);
            }
        }
    }

    void FingersOnTheKeypad()
    {
        using enum Finger;
        using Row = std::tuple<QString, Finger, FingerStrip, FingerStrip>;
        for (const auto &[characters, finger, narrow, wide] :
             {Row{u"0"_s, Thumb, {249, 36}, {320, 45}}, Row{u"147"_s, RightIndex, {285, 35}, {365, 45}},
              Row{u"258/"_s, RightMiddle, {320, 33}, {410, 42}},
              Row{u"369*."_s, RightRing, {353, 28}, {452, 36}},
              Row{u"+-"_s, RightLittle, {381, 29}, {488, 37}}}) {
            QCOMPARE(KeypadKeys::StripOf(finger, LayoutMode::None), FingerStrip());
            QCOMPARE(KeypadKeys::StripOf(finger, LayoutMode::Narrow), narrow);
            QCOMPARE(KeypadKeys::StripOf(finger, LayoutMode::Wide), wide);
            for (const QChar character : characters)
                QCOMPARE(KeypadKeys::Keys().at(*KeypadKeys::KeyFor(character.unicode())).finger, finger);
        }
    }

    void KeysLieInThePictureSideBySide()
    {
        using enum AnsiKeyboard::Size;
        CheckPicture<AnsiKeyboard>(Small, {704, 217});
        CheckPicture<AnsiKeyboard>(Large, {896, 276});
        CheckPicture<KeypadKeys>(Small, {186, 216});
        CheckPicture<KeypadKeys>(Large, {240, 276});
    }

private:
    template <typename Keyboard>
    static void CheckPicture(AnsiKeyboard::Size size, QSize pictureSize)
    {
        QCOMPARE(Keyboard::PictureSize(size), pictureSize);
        QList<QRect> rects;
        QRect all;
        for (int index = 0; index < Keyboard::Keys().size(); ++index) {
            const QRect rect = Keyboard::KeyRect(index, size);
            QVERIFY(rect.width() >= 40 && rect.height() >= 36);
            for (const QRect &other : rects)
                QVERIFY(!other.intersects(rect));
            rects += rect;
            all |= rect;
        }
        QVERIFY(QRect({}, pictureSize).contains(all));
        QVERIFY(qAbs(all.top() + all.bottom() + 1 - pictureSize.height()) <= 2);
    }
};

QTEST_GUILESS_MAIN(tst_Keyboards)
#include "tst_Keyboards.moc"
