#include "core/drills/KeypadKeys.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_KeypadKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EachKeyHasItsCodeAndFinger()
    {
        using enum Finger;
        using Row = std::tuple<char16_t, int, Finger, FingerStrip, FingerStrip>;
        const FingerStrip index{365, 45};
        const FingerStrip middle{410, 42};
        const FingerStrip ring{452, 36};
        const FingerStrip little{488, 37};
        for (const auto &[character, code, finger, wide, narrow] :
             {Row{u'0', 96, Thumb, {320, 45}, {249, 36}}, Row{u'1', 97, RightIndex, index, {285, 35}},
              Row{u'2', 98, RightMiddle, middle, {320, 33}}, Row{u'3', 99, RightRing, ring, {353, 28}},
              Row{u'4', 100, RightIndex, index, {285, 35}}, Row{u'5', 101, RightMiddle, middle, {320, 33}},
              Row{u'6', 102, RightRing, ring, {353, 28}}, Row{u'7', 103, RightIndex, index, {285, 35}},
              Row{u'8', 104, RightMiddle, middle, {320, 33}}, Row{u'9', 105, RightRing, ring, {353, 28}},
              Row{u'*', 106, RightRing, ring, {353, 28}}, Row{u'+', 107, RightLittle, little, {381, 29}},
              Row{u'-', 109, RightLittle, little, {381, 29}}, Row{u'.', 110, RightRing, ring, {353, 28}},
              Row{u'/', 111, RightMiddle, middle, {320, 33}}}) {
            const auto key = KeypadKeys::KeyFor(character);
            QVERIFY(key && KeypadKeys::KeyWithCode(code) == key);
            QCOMPARE(KeypadKeys::Keys().at(*key).finger, finger);
            QCOMPARE(KeypadKeys::StripOf(finger, LayoutMode::Wide), wide);
            QCOMPARE(KeypadKeys::StripOf(finger, LayoutMode::Narrow), narrow);
            QCOMPARE(KeypadKeys::StripOf(finger, LayoutMode::None), FingerStrip());
        }
        QCOMPARE(KeypadKeys::KeyWithCode(108), KeypadKeys::KeyFor(U'.'));
        for (const int none : {0, 13, 53, 95, 112, 144})
            QVERIFY(!KeypadKeys::KeyWithCode(none) && (none == 53 || !KeypadKeys::KeyFor(char32_t(none))));
    }

    void KeysFillTheirPicture()
    {
        for (const auto &[size, picture] : {std::pair(KeypadKeys::Size::Small, QSize(186, 216)),
                                            {KeypadKeys::Size::Large, QSize(240, 276)}}) {
            QCOMPARE(KeypadKeys::PictureSize(size), picture);
            QList<QRect> before;
            QRect all;
            for (int index = 0; index < KeypadKeys::Keys().size(); ++index) {
                const QRect rect = KeypadKeys::KeyRect(index, size);
                QVERIFY(QRect({}, picture).contains(rect));
                for (const QRect &other : before)
                    QVERIFY(!other.intersects(rect));
                before += rect;
                all |= rect;
            }
            QVERIFY(qAbs(all.top() + all.bottom() + 1 - picture.height()) <= 2);
        }
    }
};

QTEST_GUILESS_MAIN(tst_KeypadKeys)
#include "tst_KeypadKeys.moc"
