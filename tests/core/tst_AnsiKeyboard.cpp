#include "core/drills/AnsiKeyboard.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_AnsiKeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryPrintableCharacterHasItsKeyAndHand_data();
    void EveryPrintableCharacterHasItsKeyAndHand();
    void ShiftIsStruckByTheOtherHand_data();
    void ShiftIsStruckByTheOtherHand();
    void OtherCharactersHaveNoKey();
    void KeysLieInThePictureSideBySide_data();
    void KeysLieInThePictureSideBySide();
    void KeyCodes_data();
    void KeyCodes();
};

// The finger of a character is also what the picture of the hands lights; these sets are how a typing teacher
// writes them down.
void tst_AnsiKeyboard::EveryPrintableCharacterHasItsKeyAndHand_data()
{
    QTest::addColumn<QString>("characters");
    QTest::addColumn<Finger>("finger");
    QTest::newRow("left little") << u"QAZ`~1!"_s << Finger::LeftLittle;
    QTest::newRow("left ring") << u"WSX2@"_s << Finger::LeftRing;
    QTest::newRow("left middle") << u"EDC3#"_s << Finger::LeftMiddle;
    QTest::newRow("left index") << u"RFVTGB4$5%"_s << Finger::LeftIndex;
    QTest::newRow("right index") << u"YHNUJM6^7&"_s << Finger::RightIndex;
    QTest::newRow("right middle") << u"IK,<8*"_s << Finger::RightMiddle;
    QTest::newRow("right ring") << u"OL.>9("_s << Finger::RightRing;
    QTest::newRow("right little") << u"\"P;:/?0)'[]{}-_=+\\|"_s << Finger::RightLittle;
    QTest::newRow("thumb") << u" "_s << Finger::Thumb;
}

void tst_AnsiKeyboard::EveryPrintableCharacterHasItsKeyAndHand()
{
    QFETCH(QString, characters);
    QFETCH(Finger, finger);
    for (const QChar upper : characters) {
        for (const QChar character : {upper, upper.toLower()}) {
            const auto stroke = AnsiKeyboard::StrokeFor(character);
            QVERIFY2(stroke, qPrintable(QString(character)));
            const AnsiKey &key = AnsiKeyboard::Keys().at(stroke->key);
            QCOMPARE(key.finger, finger);
            QCOMPARE(stroke->shiftKey ? key.shifted : key.plain, character);
        }
    }
}

void tst_AnsiKeyboard::ShiftIsStruckByTheOtherHand_data()
{
    QTest::addColumn<QChar>("character");
    QTest::addColumn<QString>("shiftKey");
    QTest::newRow("a small letter needs none") << QChar(u'a') << QString();
    QTest::newRow("a digit needs none") << QChar(u'7') << QString();
    QTest::newRow("the space needs none") << QChar(u' ') << QString();
    QTest::newRow("left letter") << QChar(u'A') << u"Right Shift"_s;
    QTest::newRow("right letter") << QChar(u'L') << u"Left Shift"_s;
    QTest::newRow("last of the left hand") << QChar(u'%') << u"Right Shift"_s;
    QTest::newRow("first of the right hand") << QChar(u'^') << u"Left Shift"_s;
    QTest::newRow("tilde") << QChar(u'~') << u"Right Shift"_s;
    QTest::newRow("bar") << QChar(u'|') << u"Left Shift"_s;
}

void tst_AnsiKeyboard::ShiftIsStruckByTheOtherHand()
{
    QFETCH(QChar, character);
    QFETCH(QString, shiftKey);
    const auto stroke = AnsiKeyboard::StrokeFor(character);
    QVERIFY(stroke);
    QCOMPARE(stroke->shiftKey ? AnsiKeyboard::Keys().at(*stroke->shiftKey).name : QString(), shiftKey);
}

void tst_AnsiKeyboard::OtherCharactersHaveNoKey()
{
    for (char16_t code = 0; code < 0x300; ++code) {
        const bool printable = code >= u' ' && code <= u'~';
        QCOMPARE(AnsiKeyboard::StrokeFor(QChar(code)).has_value(), printable);
    }
    QVERIFY(!AnsiKeyboard::StrokeFor(QChar(u'中')));
}

void tst_AnsiKeyboard::KeysLieInThePictureSideBySide_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QSize>("picture");
    QTest::newRow("small") << int(AnsiKeyboard::Size::Small) << QSize(704, 217);
    QTest::newRow("large") << int(AnsiKeyboard::Size::Large) << QSize(896, 276);
}

void tst_AnsiKeyboard::KeysLieInThePictureSideBySide()
{
    QFETCH(int, size);
    QFETCH(QSize, picture);
    const auto sizeKind = static_cast<AnsiKeyboard::Size>(size);
    QCOMPARE(AnsiKeyboard::PictureSize(sizeKind), picture);

    QList<QRect> rects;
    for (int index = 0; index < AnsiKeyboard::Keys().size(); ++index) {
        const QRect rect = AnsiKeyboard::KeyRect(index, sizeKind);
        QVERIFY(rect.width() >= 40 && rect.height() >= 36);
        QVERIFY(QRect(QPoint(0, 0), picture).contains(rect));
        for (const QRect &other : rects)
            QVERIFY(!other.intersects(rect));
        rects.append(rect);
    }

    // Both edges of the keyboard are straight: every row begins and ends at the same place.
    for (int row = 0; row < 5; ++row) {
        QRect extent;
        for (int index = 0; index < rects.size(); ++index) {
            if (AnsiKeyboard::Keys().at(index).row == row)
                extent |= rects.at(index);
        }
        QCOMPARE(extent.left(), rects.constFirst().left());
        QCOMPARE(extent.right(), rects.constLast().right());
    }
}

void tst_AnsiKeyboard::KeyCodes_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("name");
    QTest::newRow("letter") << 65 << u"A"_s;
    QTest::newRow("digit") << 48 << u"0"_s;
    QTest::newRow("comma") << 188 << u","_s;
    QTest::newRow("backslash") << 220 << u"\\"_s;
    QTest::newRow("either Shift") << 16 << u"Left Shift"_s;
    QTest::newRow("right Ctrl") << 163 << u"Right Ctrl"_s;
    QTest::newRow("Enter") << 13 << u"Enter"_s;
    QTest::newRow("keypad digit") << 97 << QString();
    QTest::newRow("F1") << 112 << QString();
    QTest::newRow("none") << 0 << QString();
}

void tst_AnsiKeyboard::KeyCodes()
{
    QFETCH(int, code);
    QFETCH(QString, name);
    const auto index = AnsiKeyboard::KeyWithCode(code);
    QCOMPARE(index ? AnsiKeyboard::Keys().at(*index).name : QString(), name);
}

QTEST_GUILESS_MAIN(tst_AnsiKeyboard)
#include "tst_AnsiKeyboard.moc"
