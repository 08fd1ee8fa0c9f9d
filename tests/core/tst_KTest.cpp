#include "core/engine/KTest.h"
#include "core/engine/TextUnits.h"
#include "support/TypingCase.h"

#include <QDir>
#include <QTest>
#include <memory>

using namespace Qt::Literals::StringLiterals;

/// Both typing engines, and what they know about characters.
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
        QString Lines() const
        {
            QStringList lines;
            for (int line = 1; line <= test->LineCount(); ++line)
                lines += test->LoadTestLine(line);
            return lines.join(u'|');
        }

        FakeServices services;
        TestInstall install{u"Anna"_s};
        std::unique_ptr<KTest> test = std::make_unique<KTest>();
    };

private Q_SLOTS:
    void RecordedSessions_data()
    {
        QTest::addColumn<QString>("path");
        const QDir folder(QStringLiteral(QUORVEX_TEST_DATA "/typing"));
        const QStringList names = folder.entryList({u"*.txt"_s});
        QVERIFY(!names.isEmpty());
        for (const QString &name : names)
            QTest::newRow(qPrintable(name)) << folder.filePath(name);
    }

    void RecordedSessions()
    {
        QFETCH(QString, path);
        TypingCase recorded(path);
        QCOMPARE(recorded.Play(), recorded.Expected());
    }

    void ATextIsCutBetweenUnits()
    {
        const QString million(1'000'000, u'a');
        const QList<std::tuple<int, QString, QString>> texts{
            {12, u"Hello world"_s, u"Hello world"_s},
            {11, u"Hello world"_s, u"Hello |world"_s},
            {6, u"Hello world"_s, u"Hello| |world"_s},
            {5, u"Hello world"_s, u"|Hello| |world"_s},
            {10, u"一二三四五1２"_s, u"一二三四|五1２"_s},
            {4, u"abéＡc"_s, u"ab|é|Ａc"_s},
            {9, u"\r\n\na\rb\r\n\r\nc\n\n"_s, u"a|b|c"_s},
            {5, u"𠀀𠀁𠀂"_s, u"𠀀𠀁|𠀂"_s},
            {0, u"ab1"_s, u"|ab|1"_s},
            {300, QString(101, u'1'), QString(100, u'1') + u"|1"_s},
            {80, million + u"\nb"_s, u'|' + million + u"|b"_s}};
        for (const auto &[columns, text, lines] : texts) {
            const Lesson lesson(text.toUtf8(), columns);
            QVERIFY(lesson.test->LoadLesson());
            QCOMPARE(lesson.Lines(), lines);
        }
    }

    void WhatCannotBeLoadedChangesNothing()
    {
        const Lesson lesson("\xd1\xa7\xb6\xf8");
        QVERIFY(lesson.test->LoadLesson());
        lesson.test->CheckString(u"a"_s);
        const QString folder = Shared().InstallDir;
        for (const QString &path : {QString(), folder + u"none.txt"_s, folder + u"Data\\Texts"_s}) {
            Shared().TestFile[0] = path;
            QVERIFY(!lesson.test->LoadLesson());
            QCOMPARE(lesson.Lines(), u"学而"_s);
            QCOMPARE(lesson.test->m_sTip, u"Texts: a.txt"_s);
            QCOMPARE(lesson.test->GetProgress(), 50);
        }
        Shared().TestFile[0] = folder + u"DATA\\\\texts\\A.TXT"_s;
        QVERIFY(lesson.test->LoadLesson());
        QCOMPARE(lesson.test->GetProgress(), 0);
    }

    void TypedLinesAreSavedWhole()
    {
        const Lesson lesson("ab\ncd\n");
        QVERIFY(lesson.test->LoadLesson());
        lesson.test->CheckString(u"午"_s);
        lesson.test->SetNextLine();
        const QString path = Shared().InstallDir + u"typed.txt"_s;
        QVERIFY(lesson.test->SaveInput(path));
        lesson.test->CheckString(u"𠀀"_s);
        QVERIFY(!lesson.test->SaveInput(Shared().InstallDir + u"none\\typed.txt"_s));
        QCOMPARE(lesson.install.Read(u"typed.txt"_s), "午\r\n\r\n"_ba);
        QCOMPARE(lesson.install.Entries(QString()).join(u' '), u"Data Users typed.txt"_s);
        int line = -1; // the current one
        QString typed;
        QCOMPARE(lesson.test->IsRightKey(typed, 0, line), KeyMark::KeyWrong);
        QCOMPARE(typed + lesson.test->LoadTestLine(line) + QString::number(line), u"𠀀cd2"_s);
    }

    void ReleaseStoresTheSettings()
    {
        Lesson lesson("a");
        const QString file = u"Users/Anna/Setting.ini"_s;
        lesson.install.Write(file, "[Exam]\r\nOutComp=3\r\n");
        Shared().TestDisplayMode = {1, 4, 2};
        Shared().ShowOrg = false;
        Shared().Frequency = 5;
        Shared().OverType = 1;
        Shared().LimitTime = 15;
        Shared().NewLine = 2;
        lesson.test.reset();
        QCOMPARE(lesson.install.Read(file),
                 "[Exam]\r\nOutComp=3\r\nInComp=1\r\nAuditionComp=2\r\nShowOrg=0\r\nFrequency=5\r\n"
                 "OverType=1\r\nLimitTime=15\r\n[Main]\r\nNewLine=2\r\n");
        Shared().NewLine = 1;
        KFreeType().Clear();
        QVERIFY(lesson.install.Read(file).endsWith("LimitTime=15\r\n[Main]\r\nNewLine=1\r\n"));
        Shared().CurrentUserName.clear();
        const QStringList before = lesson.install.Tree();
        KFreeType().Clear();
        QCOMPARE(lesson.install.Tree(), before);
    }

    void QuotientsAndWidths()
    {
        using namespace Public_Function;
        QCOMPARE(CeilDiv(20.4F, 10), 3);
        QCOMPARE(CeilDiv(5, 0.5F), 0);
        QCOMPARE(GetTextWidth(u"aé午𠀀"_s), 7);
        QCOMPARE(GetTextWidth(QString(20'000, u'午')), 32767);
    }
};

QTEST_GUILESS_MAIN(tst_KTest)
#include "tst_KTest.moc"
