#include "core/drills/KeyDrillSession.h"
#include "core/drills/KeyMistakes.h"
#include "core/drills/LineSession.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Judgement = KeyDrillSession::Judgement;
using Step = LineSession::Step;

/// What is typed key by key, and line by line.
class tst_DrillSessions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void JudgesKeys()
    {
        // Letter case aside; a character outside the basic plane is one key.
        using Row = std::tuple<const char32_t *, char32_t, bool>;
        for (const auto &[expected, typed, right] :
             {Row{U"azz", U'a', true}, Row{U"Azz", U'a', true}, Row{U"äzz", U'Ä', true},
              Row{U"qzz", U'w', false}, Row{U"1zz", U'!', false}, Row{U"qzz", U'\b', false},
              Row{U"𝒳zz", U'𝒳', true}, Row{U"𝒳zz", U'𝒴', false}}) {
            KeyDrillSession session = Begun({QString::fromUcs4(expected)});
            QCOMPARE(session.TypeCharacter(typed), right ? Judgement::NextKey : Judgement::Wrong);
            QCOMPARE(session.TotalKeys(), 1);
            QCOMPARE(session.CorrectKeys(), right ? 1 : 0);
            QCOMPARE(session.CurrentCharacter(), right ? U'z' : expected[0]);
        }
    }

    void ALessonIsTypedToItsEndAndItsEndAgain()
    {
        KeyDrillSession session = Begun({u"ab"_s, u"cd"_s});
        QCOMPARE(session.TypeCharacter(U'a'), Judgement::NextKey);
        QCOMPARE(session.TypeCharacter(U'x'), Judgement::Wrong);
        QCOMPARE(session.TypeCharacter(U'b'), Judgement::NextGroup);
        QCOMPARE(session.ItemIndex(), 1);
        QCOMPARE(session.CurrentGroup(), U"cd");
        session.TypeCharacter(U'c');
        // Who asks for another lesson and then takes none goes on with the end of the old one.
        for (const Judgement judgement : {Judgement::LessonDone, Judgement::NextKey, Judgement::LessonDone}) {
            QCOMPARE(session.TypeCharacter(U'd'), judgement);
            QVERIFY(session.ItemIndex() >= session.ItemCount());
            QCOMPARE(session.CurrentCharacter(), U'd');
        }
        session.Restart();
        QCOMPARE(session.ItemIndex() + session.TotalKeys() + session.CorrectKeys(), 0);
        QCOMPARE(session.CurrentCharacter(), U'a');
    }

    void ALessonWithoutGroupsLeavesTheOldOneToType()
    {
        KeyDrillSession session;
        QCOMPARE(session.TypeCharacter(U'a'), Judgement::Wrong);
        session = Begun({u"ab"_s, u"cd"_s});
        session.SetGroups({});
        QVERIFY(!session.HasGroups());
        QCOMPARE(session.TypeCharacter(U'a'), Judgement::NextKey);
        QCOMPARE(session.TypeCharacter(U'b'), Judgement::LessonDone);
    }

    void MissesAreCountedByCharacter()
    {
        KeyMistakes mistakes;
        for (const char32_t character : std::u32string(U"baa~!A é𝒳\x1F\x7F"))
            mistakes.Add(character);
        QCOMPARE(mistakes.Count(u'a'), 2);
        QCOMPARE(mistakes.Count(u'z'), 0);
        QCOMPARE(mistakes.MistakeString(), u"!Aaab~"_s);
        for (int i = 0; i < 40000; ++i)
            mistakes.Add(U'q');
        QCOMPARE(mistakes.Count(u'q'), qint16(32767));
    }

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
            for (auto left = items.toUcs4().size() + 1; left > 0; --left) {
                const Step step = session.Type(U'?').step;
                QCOMPARE(step == Step::LessonDone, left == 1);
                if (step == Step::NextLine)
                    found += u'|' + QString::fromStdU32String(session.Line().text);
            }
            QCOMPARE(found, lines);
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

    void JudgesLinesAndTakesBack()
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
    static KeyDrillSession Begun(const QStringList &groups)
    {
        KeyDrillSession session;
        session.SetGroups(groups);
        session.BeginAt(0);
        return session;
    }

    static LineSession Session(const QStringList &items, int width)
    {
        LineSession session(
            [width](const std::u32string &line) { return static_cast<int>(line.size()) <= width; });
        session.SetItems(static_cast<int>(items.size()), [items](int index) { return items.at(index); });
        return session;
    }
};

QTEST_GUILESS_MAIN(tst_DrillSessions)
#include "tst_DrillSessions.moc"
