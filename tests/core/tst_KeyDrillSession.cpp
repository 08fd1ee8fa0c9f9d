#include "core/drills/FingerTable.h"
#include "core/drills/KeyDrillSession.h"
#include "core/drills/KeyMistakes.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Judgement = KeyDrillSession::Judgement;

class tst_KeyDrillSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Judging_data()
    {
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("right");
        QTest::newRow("the same") << u"a"_s << u"a"_s << true;
        QTest::newRow("small for capital") << u"A"_s << u"a"_s << true;
        QTest::newRow("capital for small") << u"ä"_s << u"Ä"_s << true;
        QTest::newRow("another letter") << u"q"_s << u"w"_s << false;
        QTest::newRow("the shifted character of the key") << u"1"_s << u"!"_s << false;
        QTest::newRow("Backspace") << u"q"_s << u"\b"_s << false;
        QTest::newRow("outside the basic plane") << u"𝒳"_s << u"𝒳"_s << true;
        QTest::newRow("its neighbour there") << u"𝒳"_s << u"𝒴"_s << false;
    }

    void Judging()
    {
        QFETCH(QString, expected);
        QFETCH(QString, typed);
        QFETCH(bool, right);
        KeyDrillSession session;
        session.SetGroups({expected + u"zz"_s});
        session.BeginAt(0);
        TypeAll(session, typed);
        QCOMPARE(session.TotalKeys(), 1);
        QCOMPARE(session.CorrectKeys(), right ? 1 : 0);
        QCOMPARE(session.PromptIndex(), right ? 1 : 0);
        QCOMPARE(session.CurrentCharacter(), right ? U'z' : expected.toStdU32String().front());
    }

    void ALessonIsTypedToItsEnd()
    {
        KeyDrillSession session;
        session.SetGroups({u"ab"_s, u"c"_s});
        session.BeginAt(0);
        QCOMPARE(session.TypeCharacter(U'a'), Judgement::NextKey);
        QCOMPARE(session.TypeCharacter(U'x'), Judgement::Wrong);
        QCOMPARE(session.TypeCharacter(U'b'), Judgement::NextGroup);
        QCOMPARE(session.ItemIndex(), 1);
        QCOMPARE(session.CurrentGroup(), U"c");
        QCOMPARE(session.TypeCharacter(U'c'), Judgement::LessonDone);
        QCOMPARE(session.ItemIndex(), session.ItemCount());
        QCOMPARE(session.TotalKeys(), 4);
        QCOMPARE(session.CorrectKeys(), 3);

        session.Restart();
        QCOMPARE(session.ItemIndex(), 0);
        QCOMPARE(session.TotalKeys() + session.CorrectKeys(), 0);
        QCOMPARE(session.CurrentCharacter(), U'a');
    }

    // Who asks for another lesson and then takes none goes on with the end of the old one.
    void TheEndOfALessonCanBeTypedAgain()
    {
        KeyDrillSession session;
        session.SetGroups({u"xy"_s, u"ab"_s});
        session.BeginAt(1);
        TypeAll(session, u"ab"_s);
        QCOMPARE(session.CurrentCharacter(), U'b');
        QCOMPARE(session.PromptIndex(), 1);
        QCOMPARE(session.TypeCharacter(U'a'), Judgement::Wrong);
        QCOMPARE(session.TypeCharacter(U'b'), Judgement::NextKey);
        QCOMPARE(session.TypeCharacter(U'b'), Judgement::LessonDone);
    }

    void ALessonWithoutGroupsLeavesTheOldOneToType()
    {
        KeyDrillSession session;
        QCOMPARE(session.TypeCharacter(U'a'), Judgement::Wrong);
        session.SetGroups({u"ab"_s, u"cd"_s});
        session.BeginAt(0);
        session.SetGroups({});
        QVERIFY(!session.HasGroups());
        QCOMPARE(session.TypeCharacter(U'a'), Judgement::NextKey);
        QCOMPARE(session.TypeCharacter(U'b'), Judgement::LessonDone);
        session.Restart();
        QCOMPARE(session.CurrentCharacter(), U'b');
    }

    void MissesAreCountedByCharacter()
    {
        KeyMistakes mistakes;
        for (const char32_t character : std::u32string(U"baa~!A é𝒳\x1F\x7F"))
            mistakes.Add(character);
        QCOMPARE(mistakes.Count(u'a'), 2);
        QCOMPARE(mistakes.Count(u'A'), 1);
        QCOMPARE(mistakes.Count(u'z'), 0);
        QCOMPARE(mistakes.MistakeString(), u"!Aaab~"_s);
    }

    void AFullCounterStaysFull()
    {
        KeyMistakes mistakes;
        for (int i = 0; i < 40000; ++i)
            mistakes.Add(U'q');
        QCOMPARE(mistakes.Count(u'q'), qint16(32767));
        QCOMPARE(mistakes.MistakeString().size(), 32767);
    }

    void Strips_data()
    {
        QTest::addColumn<QString>("characters");
        QTest::addColumn<QList<int>>("narrow");
        QTest::addColumn<QList<int>>("wide");
        QTest::addColumn<QString>("name");
        const auto row = [](const char *title, const QString &characters, QList<int> narrow, QList<int> wide,
                            const QString &name) {
            QTest::newRow(title) << characters << narrow << wide << name;
        };
        row("left little", u"Qaz`~1!"_s, {0, 28}, {0, 37}, u"left little finger"_s);
        row("left ring", u"wSX2@"_s, {28, 28}, {37, 33}, u"left ring finger"_s);
        row("left middle", u"EDc3#"_s, {56, 34}, {73, 42}, u"left middle finger"_s);
        row("left index", u"RfVTGB4$5%"_s, {90, 34}, {115, 45}, u"left index finger"_s);
        row("right index", u"yHNUJM6^7&"_s, {285, 35}, {365, 45}, u"right index finger"_s);
        row("right middle", u"IK,<8*"_s, {320, 33}, {410, 42}, u"right middle finger"_s);
        row("right ring", u"OL.>9("_s, {353, 28}, {455, 36}, u"right ring finger"_s);
        row("right little", u"\"P;:/?0)'[]{}-_=+\\|"_s, {381, 29}, {488, 37}, u"right little finger"_s);
        row("thumb", u" "_s, {124, 38}, {160, 50}, u"thumb"_s);
        row("nobody's", u"éß中𝒳\b"_s, {0, 0}, {0, 0}, {});
    }

    void Strips()
    {
        QFETCH(QString, characters);
        QFETCH(QList<int>, narrow);
        QFETCH(QList<int>, wide);
        for (const char32_t character : characters.toStdU32String()) {
            QCOMPARE(FingerTable::StripFor(character, LayoutMode::None), FingerStrip());
            QCOMPARE(FingerTable::StripFor(character, LayoutMode::Narrow),
                     (FingerStrip{narrow[0], narrow[1]}));
            QCOMPARE(FingerTable::StripFor(character, LayoutMode::Wide), (FingerStrip{wide[0], wide[1]}));
            const auto finger = FingerTable::FingerFor(character);
            QTEST(finger ? FingerTable::NameOf(*finger) : QString(), "name");
        }
    }

private:
    static void TypeAll(KeyDrillSession &session, const QString &text)
    {
        for (const char32_t character : text.toStdU32String())
            session.TypeCharacter(character);
    }
};

QTEST_GUILESS_MAIN(tst_KeyDrillSession)
#include "tst_KeyDrillSession.moc"
