#include "core/drills/LineSession.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Step = LineSession::Step;

class tst_LineSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FillsLines_data()
    {
        QTest::addColumn<QString>("items");
        QTest::addColumn<int>("width");
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("the closing space counts") << u"aa bb c"_s << 5 << QStringList{u"aa "_s, u"bb c "_s};
        QTest::newRow("all on one") << u"aa bb c"_s << 8 << QStringList{u"aa bb c "_s};
        QTest::newRow("wider than the box")
            << u"a bcdefgh i"_s << 4 << QStringList{u"a "_s, u"bcdefgh "_s, u"i "_s};
        QTest::newRow("two units a character") << u"𝒳𝒳 𝒳 b"_s << 5 << QStringList{u"𝒳𝒳 𝒳 "_s, u"b "_s};
    }

    void FillsLines()
    {
        QFETCH(QString, items);
        QFETCH(int, width);
        QFETCH(QStringList, lines);
        LineSession session = Session(items.split(u' '), width);
        session.BeginAt(0);
        for (const QString &line : lines) {
            QCOMPARE(QString::fromStdU32String(session.Line().text), line);
            const bool last = line == lines.back();
            for (int i = session.Line().Length(); i > 0; --i)
                QCOMPARE(session.Type(U'?').step,
                         i > 1 ? Step::OnLine : (last ? Step::LessonDone : Step::NextLine));
        }
        QCOMPARE(session.CurrentItem(), session.ItemCount());
        QCOMPARE(session.CorrectKeys(), 0);
    }

    void KnowsTheItemBeingTyped()
    {
        LineSession session = Session({u"xx"_s, u"ab"_s, u"c"_s, u"def"_s}, 6);
        session.BeginAt(1); // "ab c "
        QByteArray items;
        for (int typed = 0; typed < 6; ++typed) {
            items += QByteArray::number(session.CurrentItem());
            session.Type(U'?');
        }
        QCOMPARE(items, "111223"_ba); // behind a word it is still the word, behind its space the next
        QCOMPARE(session.ItemsDone(), 2);
        session.BeginAt(4);
        QCOMPARE(session.CurrentItem(), 0);
        session.CountFrom(4);
        QCOMPARE(session.ItemsDone(), -4);
    }

    void JudgesAndTakesBack()
    {
        LineSession session = Session({u"aB"_s, u"𝒳"_s}, 9);
        session.BeginAt(0);
        QVERIFY(!session.TakeBack());
        using Row = std::tuple<char32_t, bool, char32_t>; // typed (8: taken back), right, expected next
        for (const auto &[typed, right, next] :
             {Row{U'A', false, U'B'}, Row{U'\b', true, U'a'}, Row{U'a', true, U'B'}, Row{U'b', false, U' '},
              Row{U'\b', true, U'B'}, Row{U'B', true, U' '}, Row{U' ', true, U'𝒳'}, Row{U'𝒳', true, U' '}}) {
            const char32_t before = session.Expected();
            if (typed == U'\b')
                QVERIFY(session.TakeBack());
            else
                QCOMPARE(session.Type(typed).right, right);
            QCOMPARE(session.Expected(), next);
            if (typed != U'\b')
                QCOMPARE(session.Judged(), before);
        }
        QCOMPARE(session.TotalKeys(), 6);
        QCOMPARE(session.CorrectKeys(), 4);
        // Behind the end: the last character is asked for again, and can be taken back.
        QCOMPARE(session.Type(U'x').step, Step::LessonDone);
        QCOMPARE(session.Type(U' ').right, true);
        QCOMPARE(session.Position(), 6);
        QVERIFY(session.TakeBack() && session.TakeBack());
        QCOMPARE(session.Expected(), U' ');
        session.Restart();
        QCOMPARE(session.TotalKeys() + session.CorrectKeys() + session.Position(), 0);
    }

    void AsksForNoMoreThanALine()
    {
        int asked = 0;
        LineSession session([](const std::u32string &line) { return line.size() <= 40; });
        session.SetItems(1'000'000, [&asked](int index) {
            ++asked;
            return QString::number(index);
        });
        session.BeginAt(999'990);
        QVERIFY(asked <= 7);
        asked = 0;
        for (int i = 0; i < 20; ++i)
            session.Type(U'1');
        QCOMPARE(asked, 0);
    }

private:
    static LineSession Session(const QStringList &items, int width)
    {
        LineSession session(
            [width](const std::u32string &line) { return static_cast<int>(line.size()) <= width; });
        session.SetItems(static_cast<int>(items.size()), [items](int index) { return items.at(index); });
        return session;
    }
};

QTEST_GUILESS_MAIN(tst_LineSession)
#include "tst_LineSession.moc"
