#include "core/drills/KeyDrillSession.h"
#include "core/drills/KeyMistakes.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Judgement = KeyDrillSession::Judgement;

class tst_KeyDrillSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Judging()
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

private:
    static KeyDrillSession Begun(const QStringList &groups)
    {
        KeyDrillSession session;
        session.SetGroups(groups);
        session.BeginAt(0);
        return session;
    }
};

QTEST_GUILESS_MAIN(tst_KeyDrillSession)
#include "tst_KeyDrillSession.moc"
