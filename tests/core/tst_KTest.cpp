#include "core/engine/KTest.h"
#include "core/engine/TextUnits.h"
#include "core/shell/Public_Define.h"
#include "support/Damage.h"
#include "support/FakeServices.h"
#include "support/TestInstall.h"
#include "support/TypingCase.h"

#include <QDir>
#include <QStringEncoder>
#include <QTest>
#include <memory>

using namespace Qt::Literals::StringLiterals;

class tst_KTest : public QObject
{
    Q_OBJECT

private:
    /// A test of the user Anna whose lesson holds these bytes.
    struct Lesson
    {
        explicit Lesson(const QByteArray &bytes, int columns = 12)
        {
            install.Write(u"Data/Texts/a.txt"_s, bytes);
            Shared().TestFile[0] = Shared().InstallDir + u"Data\\Texts\\a.txt"_s;
            test->m_nMaxCols = columns;
        }
        QStringList Lines() const
        {
            QStringList lines;
            for (int line = 1; line <= test->LineCount(); ++line)
                lines += test->LoadTestLine(line);
            return lines;
        }

        FakeServices services;
        TestInstall install{u"Anna"_s};
        std::unique_ptr<KTest> test = std::make_unique<KTest>();
    };

private Q_SLOTS:
    void RecordedTests_data()
    {
        QTest::addColumn<QString>("path");
        const QDir folder(QStringLiteral(QUORVEX_TEST_DATA "/typing"));
        const QStringList names = folder.entryList({u"*.txt"_s});
        QVERIFY(!names.isEmpty());
        for (const QString &name : names)
            QTest::newRow(qPrintable(name)) << folder.filePath(name);
    }

    void RecordedTests()
    {
        QFETCH(QString, path);
        TypingCase recorded(path);
        QCOMPARE(recorded.Play(), recorded.Expected());
    }

    void ATextIsCutBetweenUnits_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("columns");
        QTest::addColumn<QStringList>("lines");
        const QString hello = u"Hello world"_s;
        QTest::newRow("fits") << hello << 12 << QStringList{hello};
        QTest::newRow("just too wide") << hello << 11 << QStringList{u"Hello "_s, u"world"_s};
        QTest::newRow("space alone") << hello << 6 << QStringList{u"Hello"_s, u" "_s, u"world"_s};
        QTest::newRow("wide word") << hello << 5 << QStringList{u""_s, u"Hello"_s, u" "_s, u"world"_s};
        QTest::newRow("double columns") << u"一二三四五1２"_s << 10 << QStringList{u"一二三四"_s, u"五1２"_s};
        QTest::newRow("digits") << u"1234567"_s << 4 << QStringList{u"123"_s, u"456"_s, u"7"_s};
        QTest::newRow("ends and empty lines")
            << u"\r\n\na\rb\r\n\r\nc\n\n"_s << 9 << QStringList{u"a"_s, u"b"_s, u"c"_s};
        QTest::newRow("outside the basic plane") << u"𠀀𠀁𠀂"_s << 5 << QStringList{u"𠀀𠀁"_s, u"𠀂"_s};
        QTest::newRow("no width") << u"ab1"_s << 0 << QStringList{u""_s, u"ab"_s, u"1"_s};
        QTest::newRow("nothing") << u"\n"_s << 9 << QStringList();
        QTest::newRow("more columns than count")
            << QString(101, u'1') << 300 << QStringList{QString(100, u'1'), u"1"_s};
        QTest::newRow("a million letters and one") << QString(1'000'000, u'a') + u"\nb"_s << 80
                                                   << QStringList{u""_s, QString(1'000'000, u'a'), u"b"_s};
    }

    void ATextIsCutBetweenUnits()
    {
        QFETCH(QString, text);
        QFETCH(int, columns);
        Lesson lesson(text.toUtf8(), columns);
        QVERIFY(lesson.test->LoadLesson());
        QTEST(lesson.Lines(), "lines");
    }

    void AnyEncodingLoads_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QString text = u"学而时习之"_s;
        QTest::newRow("UTF-8") << text.toUtf8();
        QTest::newRow("UTF-8 with a mark") << "\xEF\xBB\xBF" + text.toUtf8();
        QTest::newRow("UTF-16") << QByteArray(
            QStringEncoder(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom)(text));
        QTest::newRow("GB18030") << QByteArray::fromHex("d1a7b6f8cab1cfb0d6ae");
    }

    void AnyEncodingLoads()
    {
        QFETCH(QByteArray, bytes);
        Lesson lesson(bytes);
        QVERIFY(lesson.test->LoadLesson());
        QCOMPARE(lesson.Lines(), QStringList{u"学而时习之"_s});
        QCOMPARE(lesson.test->m_sTip, u"Texts: a.txt"_s);
    }

    void WhatCannotBeLoadedChangesNothing_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("none chosen") << QString();
        QTest::newRow("vanished") << u"Data\\Texts\\b.txt"_s;
        QTest::newRow("a folder") << u"Data\\Texts"_s;
    }

    void WhatCannotBeLoadedChangesNothing()
    {
        QFETCH(QString, path);
        Lesson lesson("abc");
        QVERIFY(lesson.test->LoadLesson());
        lesson.test->CheckString(u"a"_s);
        Shared().TestFile[0] = path.isEmpty() ? path : Shared().InstallDir + path;
        QVERIFY(!lesson.test->LoadLesson());
        QCOMPARE(lesson.Lines(), QStringList{u"abc"_s});
        QCOMPARE(lesson.test->m_nCurCol, 1);
        QCOMPARE(lesson.test->m_sTip, u"Texts: a.txt"_s);
        Shared().TestFile[0] = Shared().InstallDir + u"DATA\\\\texts\\A.TXT"_s;
        QVERIFY(lesson.test->LoadLesson());
        QCOMPARE(lesson.test->m_nCurCol, 0);
        QCOMPARE(lesson.test->GetProgress(), 0);
    }

    void SecondsAreRoundedToTheEvenOne_data()
    {
        QTest::addColumn<double>("seconds");
        QTest::addColumn<float>("speed");
        QTest::newRow("0.4 is taken as 1") << 0.4 << 180.0F;
        QTest::newRow("0.5 is 0, taken as 1") << 0.5 << 180.0F;
        QTest::newRow("2.5 is 2") << 2.5 << 90.0F;
        QTest::newRow("3.5 is 4") << 3.5 << 45.0F;
        QTest::newRow("over midnight") << 86400.0 << 0.0F;
    }

    void SecondsAreRoundedToTheEvenOne()
    {
        QFETCH(double, seconds);
        Lesson lesson("abc");
        QVERIFY(lesson.test->LoadLesson());
        lesson.test->StartType();
        for (const QString &unit : {u"a"_s, u"b"_s, u""_s, u"c"_s})
            lesson.test->CheckString(unit);
        lesson.services.clock.Move(seconds);
        lesson.test->StopType();
        QTEST(lesson.test->m_fLastAveSpeed, "speed");
        lesson.test->StartType();
        QCOMPARE(lesson.test->m_fLastAveSpeed, 0.0F);
    }

    void LinesAreAskedForByNumber()
    {
        Lesson lesson("ab\ncd\n");
        QVERIFY(lesson.test->LoadLesson());
        QVERIFY(!lesson.test->IsLineDone());
        lesson.test->CheckString(u"a"_s);
        lesson.test->CheckString(u"𠀀"_s);
        QVERIFY(lesson.test->IsLineDone());
        QVERIFY(lesson.test->SetNextLine());
        QVERIFY(!lesson.test->SetNextLine());
        int line = -1;
        QCOMPARE(lesson.test->LoadTestLine(line), u"cd"_s);
        QCOMPARE(line, 2);
        line = 3;
        QCOMPARE(lesson.test->LoadTestLine(line) + lesson.test->GetInputLine(line), QString());
        line = 1;
        QCOMPARE(lesson.test->GetInputLine(line), u"a𠀀"_s);
        QString typed;
        QCOMPARE(lesson.test->IsRightKey(typed, 1, line), KeyMark::KeyWrong);
        QCOMPARE(typed, u"𠀀"_s);
        line = -1;
        QCOMPARE(lesson.test->IsRightKey(typed, 0, line), KeyMark::KeyUntyped);
        QCOMPARE(typed, QString());
        QCOMPARE(line, 2);
    }

    void MarksGrowWithTheText()
    {
        Lesson lesson(QByteArray(3000, 'w') + "\n" + QByteArray("x\n").repeated(3000));
        QVERIFY(lesson.test->LoadLesson());
        lesson.test->StartType();
        while (lesson.test->IsLineDone())
            lesson.test->SetNextLine();
        for (int i = 0; i < 3000; ++i)
            lesson.test->CheckString(i < 2990 ? u"w"_s : u"-"_s);
        while (lesson.test->SetNextLine())
            lesson.test->CheckString(u"-"_s);
        QCOMPARE(lesson.test->GetProgress(), 100);
        const WrongCharacters wrong = lesson.test->GetWrong();
        QCOMPARE(wrong.sWrong, QStringList({u"x"_s, u"w"_s}));
        QCOMPARE(wrong.nWrong, std::vector<int>({3000, 10}));
    }

    void TypedLinesAreSavedWhole()
    {
        Lesson lesson("ab\ncd\n");
        QVERIFY(lesson.test->LoadLesson());
        lesson.test->CheckString(u"午"_s);
        lesson.test->SetNextLine();
        const QString path = Shared().InstallDir + u"typed.txt"_s;
        QVERIFY(lesson.test->SaveInput(path));
        QCOMPARE(lesson.install.Read(u"typed.txt"_s), QByteArray("午\r\n\r\n"));
        lesson.test->CheckString(u"c"_s);
        const WriteFault full{WriteFault::Step::Write, WriteFault::Kind::Fail, 3};
        QVERIFY(!WithFault(full, [&] { return lesson.test->SaveInput(path); }));
        QVERIFY(!lesson.test->SaveInput(Shared().InstallDir + u"none\\typed.txt"_s));
        QCOMPARE(lesson.install.Read(u"typed.txt"_s), QByteArray("午\r\n\r\n"));
        QCOMPARE(lesson.install.Entries(QString()), QStringList({u"Data"_s, u"Users"_s, u"typed.txt"_s}));
    }

    void ReleaseStoresTheSettings()
    {
        Lesson lesson("a");
        lesson.install.Write(u"Users/Anna/Setting.ini"_s, "[Exam]\r\nOutComp=3\r\n");
        Shared().TestDisplayMode = {1, 4, 2};
        Shared().ShowOrg = false;
        Shared().Frequency = 5;
        Shared().OverType = 1;
        Shared().LimitTime = 15;
        Shared().NewLine = 2;
        lesson.test.reset();
        QCOMPARE(
            lesson.install.Read(u"Users/Anna/Setting.ini"_s),
            QByteArray("[Exam]\r\nOutComp=3\r\nInComp=1\r\nAuditionComp=2\r\nShowOrg=0\r\nFrequency=5\r\n"
                       "OverType=1\r\nLimitTime=15\r\n[Main]\r\nNewLine=2\r\n"));
        Shared().CurrentUserName.clear();
        const QStringList before = lesson.install.Tree();
        KTest().Clear();
        QCOMPARE(lesson.install.Tree(), before);
    }

    void QuotientsAreRoundedUp()
    {
        struct Quotient
        {
            float a, b;
            qint16 quotient;
        };
        for (const auto &[a, b, quotient] : {Quotient{20, 10, 2},
                                             {21, 10, 3},
                                             {20.4F, 10, 3},
                                             {19.6F, 10, 2},
                                             {5, 0.5F, 0},
                                             {1.0e9F, 1, 32767}})
            QCOMPARE(Public_Function::CeilDiv(a, b), quotient);
    }

    void Characters()
    {
        using namespace Public_Function;
        QCOMPARE(GetTextWidth(u"aé午𠀀"_s), qint16(7));
        QCOMPARE(GetTextWidth(QString(20'000, u'午')), qint16(32767));
        QVERIFY(IsLetter(u"z1"_s) && IsLetter(u"A"_s));
        for (const QString &other : {u""_s, u"1a"_s, u"é"_s, u"["_s, u"Ａ"_s})
            QVERIFY(!IsLetter(other));
        for (const auto &[before, after] : {std::pair(u"　"_s, u" "_s), std::pair(u"　　"_s, u"　　"_s)}) {
            QString text = before;
            ConvertFullSpace(text);
            QCOMPARE(text, after);
        }
    }
};

QTEST_GUILESS_MAIN(tst_KTest)
#include "tst_KTest.moc"
