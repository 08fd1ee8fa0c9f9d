#include "core/drills/LineSession.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Step = LineSession::Step;

class tst_LineSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FillsLines()
    {
        // The space that closes a line counts; a character outside the basic plane is one.
        using Row = std::tuple<QString, int, QString>; // items, width of the box, lines
        for (const auto &[items, width, lines] :
             {Row{u"aa bb c"_s, 5, u"aa |bb c "_s}, Row{u"aa bb c"_s, 8, u"aa bb c "_s},
              Row{u"a bcdefgh i"_s, 4, u"a |bcdefgh |i "_s}, Row{u"𝒳𝒳 𝒳 b"_s, 5, u"𝒳𝒳 𝒳 |b "_s}}) {
            LineSession session = Session(items.split(u' '), width);
            session.BeginAt(0);
            QString found = QString::fromStdU32String(session.Line().text);
            for (Step step = Step::OnLine; step != Step::LessonDone;) {
                step = session.Type(U'?').step;
                if (step == Step::NextLine)
                    found += u'|' + QString::fromStdU32String(session.Line().text);
            }
            QCOMPARE(found, lines);
            QCOMPARE(session.TotalKeys(), static_cast<int>(items.toUcs4().size()) + 1);
            QCOMPARE(session.CurrentItem(), session.ItemCount());
            QCOMPARE(session.CorrectKeys(), 0);
        }
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
        const std::u32string typed = U"A\bab\bB 𝒳"; // \b: the last one is taken back
        const std::u32string next = U"BaB B 𝒳 ";    // what is to be typed after each of them
        for (std::size_t i = 0; i < typed.size(); ++i) {
            const char32_t before = session.Expected();
            if (typed[i] == U'\b') {
                QVERIFY(session.TakeBack());
            } else {
                QCOMPARE(session.Type(typed[i]).right, typed[i] == before);
                QCOMPARE(session.Judged(), before);
            }
            QCOMPARE(session.Expected(), next[i]);
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
