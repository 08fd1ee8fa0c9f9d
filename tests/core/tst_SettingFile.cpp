#include "core/shell/SettingFile.h"
#include "platform/Files.h"
#include "platform/WriteFault.h"
#include "support/TestInstall.h"

#include <QtTest>
#include <random>

using namespace Qt::Literals::StringLiterals;

class tst_SettingFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reading_data();
    void reading();
    void integer_data();
    void integer();
    void roundTrip_data();
    void roundTrip();
    void longValues();
    void writing_data();
    void writing();
    void savesMeet();
    void saveRefusals();
    void survivesAnyBytes();

private:
    static QString Path() { return Shared().InstallDir + u"users\\anna\\setting.ini"_s; }
    static QString StoredName() { return u"Users/Anna/Setting.ini"_s; }
};

void tst_SettingFile::reading_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("value"); // of Main/EnSound, default "def"
    QTest::newRow("no file content") << QByteArray() << u"def"_s;
    QTest::newRow("plain") << QByteArray("[Main]\r\nEnSound=2\r\n") << u"2"_s;
    QTest::newRow("any case") << QByteArray("[MAIN]\r\nensound=2") << u"2"_s;
    QTest::newRow("LF and blanks") << QByteArray(" \t[ Main ] x\n\n\t EnSound\t = 2 \t\n") << u"2"_s;
    QTest::newRow("other section") << QByteArray("EnSound=0\n[Exam]\nEnSound=1\n[Mainz]\nEnSound=3\n")
                                   << u"def"_s;
    QTest::newRow("section in two pieces")
        << QByteArray("[Main]\nA=1\n[B]\nEnSound=5\n[main]\nEnSound=2") << u"2"_s;
    QTest::newRow("the first counts") << QByteArray("[Main]\nEnSound=1\nEnSound=2\n") << u"1"_s;
    QTest::newRow("comment") << QByteArray("[Main]\n;EnSound=1\n#x\nEnSound=2\n") << u"2"_s;
    QTest::newRow("no equals sign") << QByteArray("[Main]\nEnSound\n") << u"def"_s;
    QTest::newRow("empty value") << QByteArray("[Main]\nEnSound=\n") << u""_s;
    QTest::newRow("equals in value") << QByteArray("[Main]\nEnSound=a=b\n") << u"a=b"_s;
    QTest::newRow("double quotes") << QByteArray("[Main]\nEnSound=\" a \"\n") << u" a "_s;
    QTest::newRow("single quotes") << QByteArray("[Main]\nEnSound='a'\n") << u"a"_s;
    QTest::newRow("one quote") << QByteArray("[Main]\nEnSound=\"\n") << u"\""_s;
    QTest::newRow("NUL") << QByteArray("[Main]\nEnSound=a\0b\n", 20) << u"a"_s;
    QTest::newRow("GB18030") << QByteArray("[Main]\nEnSound=\xC4\xE3\xBA\xC3\n") << u"你好"_s;
    QTest::newRow("marked UTF-8") << QByteArray("\xEF\xBB\xBF[Main]\nEnSound=\xC3\xA9\n") << u"é"_s;
}

void tst_SettingFile::reading()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, value);
    const TestInstall install(u"Anna"_s);
    install.Write(StoredName(), file);
    QCOMPARE(SettingFile(Path()).Text(u"Main"_s, u"EnSound"_s, u"def"_s), value);
}

void tst_SettingFile::integer_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("number");
    QTest::newRow("number") << QByteArray("42") << 42;
    QTest::newRow("quoted") << QByteArray("\"42\"") << 42;
    QTest::newRow("leading digits") << QByteArray("007abc8") << 7;
    QTest::newRow("no digits") << QByteArray("abc") << 0;
    QTest::newRow("empty") << QByteArray("") << 0;
    QTest::newRow("minus") << QByteArray("-5") << 0;
    QTest::newRow("other digits") << QByteArray("\xD9\xA3") << 0;
    QTest::newRow("largest") << QByteArray("2147483647") << 2147483647;
    QTest::newRow("too large") << QByteArray("2147483648") << 2147483647;
    QTest::newRow("far too large") << QByteArray(900, '9') << 2147483647;
}

void tst_SettingFile::integer()
{
    QFETCH(QByteArray, text);
    QFETCH(int, number);
    const TestInstall install(u"Anna"_s);
    install.Write(StoredName(), "[Exam]\r\nLimitTime=" + text + "\r\n");
    const SettingFile settings(Path());
    QCOMPARE(settings.Integer(u"exam"_s, u"limittime"_s, 10), number);
    QCOMPARE(settings.Integer(u"exam"_s, u"missing"_s, 10), 10);
}

void tst_SettingFile::roundTrip_data()
{
    QTest::addColumn<QString>("value");
    for (const QString &value :
         {u""_s, u" "_s, u"\t"_s, u" a"_s, u"a\t"_s, u"\"a\""_s, u"'a'"_s, u"\"\""_s, u"\""_s, u"\"a'"_s,
          u"''a"_s, u" \"a\" "_s, u"[Main]"_s, u"=;#"_s, u"\\Data\\English\\名 前.txt"_s,
          u"\u3000全角\u3000"_s, u"\u2028"_s, u"𝄞"_s, u"Adage：11.txt"_s})
        QTest::newRow(qUtf8Printable(value)) << value;
}

void tst_SettingFile::roundTrip()
{
    QFETCH(QString, value);
    const TestInstall install(u"Anna"_s);
    SettingFile settings(Path());
    settings.Set(u"English"_s, u"A"_s, value);
    settings.Set(u"English"_s, u"B"_s, 7);
    QCOMPARE(settings.Text(u"English"_s, u"A"_s, u"def"_s), value);
    QVERIFY(settings.Save());
    const SettingFile again(Path());
    QCOMPARE(again.Text(u"English"_s, u"A"_s, u"def"_s), value);
    QCOMPARE(again.Integer(u"English"_s, u"B"_s, 0), 7);
}

void tst_SettingFile::longValues()
{
    const TestInstall install(u"Anna"_s);
    SettingFile settings(Path());
    const QString ascii(1023, u'x');
    const QString pairs = u"𝄞"_s.repeated(1023);
    settings.Set(u"S"_s, u"exact"_s, ascii);
    settings.Set(u"S"_s, u"blank"_s, u' ' + ascii.chopped(1));
    settings.Set(u"S"_s, u"longer"_s, ascii + u"yz"_s);
    settings.Set(u"S"_s, u"pairs"_s, pairs + u"𝄞"_s);
    settings.Set(u"S"_s, u"cut"_s, u"a\r\n[Main]\r\nEnSound=0"_s);
    QVERIFY(settings.Save());
    const SettingFile again(Path());
    QCOMPARE(again.Text(u"S"_s, u"exact"_s, {}), ascii);
    QCOMPARE(again.Text(u"S"_s, u"blank"_s, {}), u' ' + ascii.chopped(1));
    QCOMPARE(again.Text(u"S"_s, u"longer"_s, {}), ascii);
    QCOMPARE(again.Text(u"S"_s, u"pairs"_s, {}), pairs);
    QCOMPARE(again.Text(u"S"_s, u"cut"_s, {}), u"a"_s);
    QCOMPARE(again.Integer(u"Main"_s, u"EnSound"_s, 1), 1);
}

void tst_SettingFile::writing_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after"); // of setting English/NumpadTrain_Index to 5
    QTest::newRow("new file") << QByteArray() << QByteArray("[English]\r\nNumpadTrain_Index=5\r\n");
    QTest::newRow("same key in another spelling") << QByteArray("[ENGLISH]\r\nNumPadTrain_Index = 3 \r\n")
                                                  << QByteArray("[ENGLISH]\r\nNumPadTrain_Index =5\r\n");
    QTest::newRow("unchanged value: untouched") << QByteArray("[English]\nNumPadTrain_Index = \"5\"\n\n\n")
                                                << QByteArray("[English]\nNumPadTrain_Index = \"5\"\n\n\n");
    QTest::newRow("behind the section's last key")
        << QByteArray("; mine\n\n[English]\nA=1\nstray\n\n[Main]\nB= 2\n")
        << QByteArray(
               "; mine\r\n\r\n[English]\r\nA=1\r\nstray\r\nNumpadTrain_Index=5\r\n\r\n[Main]\r\nB= 2\r\n");
    QTest::newRow("new section") << QByteArray("x\n[Main]\nB=2")
                                 << QByteArray("x\r\n[Main]\r\nB=2\r\n[English]\r\nNumpadTrain_Index=5\r\n");
    QTest::newRow("GB18030 becomes UTF-8")
        << QByteArray("[Main]\nName=\xC4\xE3\xBA\xC3\n")
        << QByteArray("[Main]\r\nName=\xE4\xBD\xA0\xE5\xA5\xBD\r\n[English]\r\nNumpadTrain_Index=5\r\n");
}

void tst_SettingFile::writing()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const TestInstall install(u"Anna"_s);
    if (!before.isNull())
        install.Write(StoredName(), before);
    SettingFile settings(Path());
    settings.Set(u"English"_s, u"NumpadTrain_Index"_s, 5);
    QVERIFY(settings.Save());
    QCOMPARE(install.Read(before.isNull() ? u"Users/Anna/setting.ini"_s : StoredName()), after);
    QCOMPARE(install.Entries(u"Users/Anna"_s).size(), 1);
}

void tst_SettingFile::savesMeet()
{
    const TestInstall install(u"Anna"_s);
    SettingFile first(Path());
    SettingFile second(Path());
    first.Set(u"Main"_s, u"EnSound"_s, 2);
    second.Set(u"Main"_s, u"ChSound"_s, 1);
    QVERIFY(first.Save() && second.Save());
    QCOMPARE(SettingFile(Path()).Integer(u"Main"_s, u"EnSound"_s, 1), 2);
    QCOMPARE(SettingFile(Path()).Integer(u"Main"_s, u"ChSound"_s, 0), 1);
    first.Set(u"Main"_s, u"ChSound"_s, 0); // what this object never saw changing
    QVERIFY(first.Save());
    QCOMPARE(SettingFile(Path()).Integer(u"Main"_s, u"ChSound"_s, 1), 0);
}

void tst_SettingFile::saveRefusals()
{
    const TestInstall install(u"Anna"_s);
    SettingFile settings(Path());
    settings.Set(u"Main"_s, u"EnSound"_s, 2);
    CurrentWriteFault() = WriteFault{WriteFault::Step::Write, WriteFault::Kind::Fail, 3};
    QVERIFY(!settings.Save());
    CurrentWriteFault().reset();
    QVERIFY(settings.Save()); // what could not be written was not forgotten
    QCOMPARE(SettingFile(Path()).Integer(u"Main"_s, u"EnSound"_s, 1), 2);

    QCOMPARE(Public_Function::RemoveFolder(Shared().InstallDir + u"Users\\Anna"_s), QString());
    settings.Set(u"Main"_s, u"EnSound"_s, 0);
    QVERIFY(!settings.Save());
    QCOMPARE(install.Entries(u"Users"_s), QStringList());

    install.MakeFolder(u"Users/Anna/Setting.ini"_s); // there, but not to be read
    QVERIFY(!settings.Save());
}

void tst_SettingFile::survivesAnyBytes()
{
    const TestInstall install(u"Anna"_s);
    const QByteArray seed(
        "[Main]\r\nEnSound=2\r\n; \xE4\xBD\xA0\r\n[Exam]\r\nName=\" \xC3\xA9\"\r\nLimitTime=10\r\n");
    std::mt19937 random(7);
    for (int round = 0; round < 300; ++round) {
        QByteArray bytes = seed;
        for (auto left = 1 + random() % 6; left > 0; --left) {
            const auto at = static_cast<qsizetype>(random() % static_cast<unsigned>(bytes.size()));
            if (random() % 3 == 0)
                bytes.remove(at, 1);
            else if (random() % 2 == 0)
                bytes.insert(at, "[]=\"'\r\n\0\xFF\xEF;"[random() % 11]);
            else
                bytes[at] = static_cast<char>(random());
        }
        install.Write(StoredName(), bytes);
        const QStringList before = Public_Function::SplitLines(Public_Function::DecodeText(bytes));
        SettingFile settings(Path());
        settings.Set(u"New"_s, u"Key"_s, round);
        QVERIFY(settings.Save());
        const QByteArray saved = install.Read(StoredName());
        QStringList after = Public_Function::SplitLines(QString::fromUtf8(saved));
        QVERIFY2(after.removeOne(u"Key="_s + QString::number(round)) && after.removeOne(u"[New]"_s),
                 bytes.toHex());
        QCOMPARE(after, before);
        QCOMPARE(SettingFile(Path()).Integer(u"New"_s, u"Key"_s, -1), round);
    }
}

QTEST_GUILESS_MAIN(tst_SettingFile)
#include "tst_SettingFile.moc"
