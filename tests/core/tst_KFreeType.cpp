#include "core/engine/KFreeType.h"
#include "core/records/RecordFile.h"
#include "support/FakeServices.h"
#include "support/TestInstall.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_KFreeType : public QObject
{
    Q_OBJECT

private:
    static void TypeAll(KFreeType &engine, const QString &text)
    {
        for (const char32_t character : text.toStdU32String())
            engine.CheckString(QString::fromUcs4(&character, 1));
    }
    static QString Line(const KFreeType &engine, int line) { return engine.GetInputLine(line); }

private Q_SLOTS:
    void OneMinute_data()
    {
        QTest::addColumn<int>("backspaces");
        QTest::addColumn<bool>("keys");
        QTest::addColumn<float>("speed");
        QTest::addColumn<QList<float>>("stored");
        QTest::newRow("what is taken back does not count") << 10 << false << 110.0F << QList<float>{110, 100};
        QTest::newRow("keys") << 1 << true << 119.0F << QList<float>{23, 100};
        QTest::newRow("nothing left") << 120 << false << 0.0F << QList<float>();
    }

    void OneMinute()
    {
        QFETCH(int, backspaces);
        QFETCH(bool, keys);
        FakeServices services;
        const TestInstall install(u"Anna"_s);
        KFreeType engine;
        engine.m_bEnglish = keys;
        engine.StartType();
        TypeAll(engine, QString(120, u'a'));
        for (int i = 0; i < backspaces; ++i)
            engine.BackSpace();
        services.clock.Move(60);
        engine.StopType();
        QTEST(engine.m_fLastAveSpeed, "speed");
        QCOMPARE(engine.m_fLastRate, 0.0F);
        QCOMPARE(engine.m_nBackSpace, backspaces);
        QVERIFY(!engine.GetWrong().any);
        engine.SaveData(u"Printed Text"_s);
        QList<float> stored;
        for (const TrainingRecord &record :
             RecordFile::DecodeTraining(install.Read(u"Users/Anna/RecordEX.Dat"_s))) {
            stored += {record.Speed, record.Rate};
            QCOMPARE(record.Text, u"Printed Text"_s);
        }
        QTEST(stored, "stored");
    }

    void LinesGoOnAndBack()
    {
        const TestInstall install;
        KFreeType engine;
        engine.BackSpace();
        QCOMPARE(engine.m_nBackSpace, 0);
        TypeAll(engine, u"a　𠀀"_s);
        QVERIFY(engine.SetNextLine());
        QVERIFY(engine.SetNextLine());
        TypeAll(engine, u"b"_s);
        engine.BackSpace();
        int line = -1;
        QCOMPARE(engine.GetInputLine(line), QString());
        QCOMPARE(line, 3);
        engine.BackSpace(); // to the empty second line
        QCOMPARE(engine.CurrentLine(), 2);
        QCOMPARE(engine.m_nBackSpace, 2);
        QCOMPARE(Line(engine, 1), u"a 𠀀"_s);
        engine.BackSpace();
        QCOMPARE(Line(engine, 1), u"a "_s);
        QCOMPARE(Line(engine, 2), QString());
        QCOMPARE(engine.m_nCurCol, 2);
        QCOMPARE(engine.m_nBackSpace, 3);
        engine.Clear();
        QCOMPARE(engine.m_nCurCol, 0);
        QCOMPARE(Line(engine, 1), QString());
    }

    void ReleaseStoresTheLineBreak()
    {
        const TestInstall install(u"Anna"_s);
        Shared().NewLine = 1;
        KFreeType().Clear();
        QCOMPARE(install.Read(u"Users/Anna/Setting.ini"_s), QByteArray("[Main]\r\nNewLine=1\r\n"));
    }
};

QTEST_GUILESS_MAIN(tst_KFreeType)
#include "tst_KFreeType.moc"
