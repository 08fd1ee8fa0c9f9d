#include "core/drills/AnsiKeyboard.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_AnsiKeyboard : public QObject
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

    void KeysLieInThePictureSideBySide()
    {
        for (const auto size : {AnsiKeyboard::Size::Small, AnsiKeyboard::Size::Large}) {
            const QRect picture(QPoint(0, 0), AnsiKeyboard::PictureSize(size));
            QCOMPARE(picture.size(), size == AnsiKeyboard::Size::Small ? QSize(704, 217) : QSize(896, 276));
            QList<QRect> rects;
            std::array<QRect, 5> rows;
            for (int index = 0; index < AnsiKeyboard::Keys().size(); ++index) {
                const QRect rect = AnsiKeyboard::KeyRect(index, size);
                QVERIFY(rect.width() >= 40 && rect.height() >= 36 && picture.contains(rect));
                for (const QRect &other : rects)
                    QVERIFY(!other.intersects(rect));
                rects += rect;
                rows.at(static_cast<std::size_t>(AnsiKeyboard::Keys().at(index).row)) |= rect;
            }
            for (const QRect &row : rows) // both edges of the keyboard are straight
                QVERIFY(row.left() == rows[0].left() && row.right() == rows[0].right());
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
    }
};

QTEST_GUILESS_MAIN(tst_AnsiKeyboard)
#include "tst_AnsiKeyboard.moc"
