#include "platform/Files.h"
#include "platform/WriteFault.h"
#include "support/TestInstall.h"

#include <QtTest>
#include <random>

using namespace Qt::Literals::StringLiterals;
using namespace Public_Function;

class tst_Files : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decode_data();
    void decode();
    void decodeAnything();
    void lines_data();
    void lines();
    void readRefusals();
    void replaceIsWholeOrNotAtAll_data();
    void replaceIsWholeOrNotAtAll();
    void replaceDoesNotFollowLinks();
    void replaceKeepsWhoMayRead();
    void replaceRefusals();
    void listing();
    void removing();
    void removingStopsAtLinks();
};

void tst_Files::decode_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    const QString sample = u"naïve 你好 𝄞"_s;
    const auto encoded = [&](QStringConverter::Encoding encoding) {
        QStringEncoder encoder(encoding, QStringConverter::Flag::WriteBom);
        return QByteArray(encoder.encode(sample));
    };
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("UTF-8") << sample.toUtf8() << sample;
    QTest::newRow("UTF-8, marked") << "\xEF\xBB\xBF" + sample.toUtf8() << sample;
    QTest::newRow("UTF-16 LE") << encoded(QStringConverter::Utf16LE) << sample;
    QTest::newRow("UTF-16 BE") << encoded(QStringConverter::Utf16BE) << sample;
    QTest::newRow("UTF-32 LE") << encoded(QStringConverter::Utf32LE) << sample;
    QTest::newRow("UTF-32 BE") << encoded(QStringConverter::Utf32BE) << sample;
    QTest::newRow("only a mark") << QByteArray("\xFF\xFE") << QString();
    QTest::newRow("GB18030") << QByteArray("\xC4\xE3\xBA\xC3 ok") << u"你好 ok"_s;
    QTest::newRow("GB18030, four bytes") << QByteArray("\xC4\xE3\x94\x32\xBE\x34") << u"你𝄞"_s;
    QTest::newRow("NUL") << QByteArray("a\0b", 3) << u"a\0b"_s;
    QTest::newRow("UTF-16 cut in half") << QByteArray("\xFF\xFE"
                                                      "A\0B",
                                                      5)
                                        << u"A\uFFFD"_s;
    QTest::newRow("half a surrogate pair") << QByteArray("\xFF\xFE\x34\xD8"
                                                         "A\0",
                                                         6)
                                           << u"\uFFFDA"_s;
    QTest::newRow("GB18030 cut in half") << QByteArray("\xC4\xE3\xBA\xC3\xBA") << u"你好\uFFFD"_s;
    QTest::newRow("damaged UTF-8") << "z\xFFz" + u"ﬁ"_s.toUtf8() << u"z\uFFFDzﬁ"_s;
}

void tst_Files::decode()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QCOMPARE(DecodeText(bytes), text);
}

void tst_Files::decodeAnything()
{
    std::mt19937 random(1);
    const QList<QByteArray> marks{"",
                                  "",
                                  "\xEF\xBB\xBF",
                                  "\xFF\xFE",
                                  "\xFE\xFF",
                                  QByteArray("\xFF\xFE\0\0", 4),
                                  QByteArray("\0\0\xFE\xFF", 4)};
    for (int round = 0; round < 5000; ++round) {
        QByteArray bytes = marks[static_cast<qsizetype>(random() % 7)];
        for (auto left = random() % 40; left > 0; --left)
            bytes += static_cast<char>(random());
        const QString text = DecodeText(bytes);
        QVERIFY2(text.isValidUtf16() && text.size() <= 2 * bytes.size(), bytes.toHex().constData());
    }
}

void tst_Files::lines_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("empty") << QString() << QStringList();
    QTest::newRow("all three ends") << u"a\r\nb\nc\rd"_s << QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s};
    QTest::newRow("end at the end") << u"a\r\n"_s << QStringList{u"a"_s};
    QTest::newRow("empty lines") << u"\r\n\r\r\n\n"_s << QStringList{u""_s, u""_s, u""_s, u""_s};
}

void tst_Files::lines()
{
    QFETCH(QString, text);
    QFETCH(QStringList, lines);
    QCOMPARE(SplitLines(text), lines);
}

void tst_Files::readRefusals()
{
    const TestInstall install;
    QVERIFY(!ReadFile(Shared().InstallDir)); // a folder
    QVERIFY(!ReadFile(Shared().InstallDir + u"none"_s));
    QVERIFY(!ReadFile(QString()));
    QFile sparse(install.Native(u"sparse"_s));
    QVERIFY(sparse.open(QIODevice::WriteOnly) && sparse.resize(qint64(5) << 30));
    QVERIFY(!ReadFile(Shared().InstallDir + u"SPARSE"_s));
}

void tst_Files::replaceIsWholeOrNotAtAll_data()
{
    QTest::addColumn<bool>("existing");
    QTest::newRow("existing file") << true;
    QTest::newRow("new file") << false;
}

void tst_Files::replaceIsWholeOrNotAtAll()
{
    QFETCH(bool, existing);
    const TestInstall install;
    const QByteArray old = existing ? QByteArray("what was there before") : QByteArray();
    const QByteArray fresh("and what is there now, longer than before");
    const QString path = Shared().InstallDir + u"f.dat"_s;
    const QString scratch = Shared().InstallDir + u"temp"_s;
    if (existing)
        install.Write(u"f.dat"_s, old);

    QList<WriteFault> faults;
    for (const auto kind : {WriteFault::Kind::Fail, WriteFault::Kind::Stop}) {
        for (const auto step : {WriteFault::Step::Open, WriteFault::Step::Flush, WriteFault::Step::Rename})
            faults.append({step, kind, 0});
        for (qsizetype bytes = 0; bytes <= fresh.size(); ++bytes)
            faults.append({WriteFault::Step::Write, kind, bytes});
    }
    for (const WriteFault &fault : faults) {
        CurrentWriteFault() = fault;
        const bool replaced = ReplaceFile(path, scratch, fresh);
        CurrentWriteFault().reset();
        QVERIFY(!replaced);
        QCOMPARE(install.Read(u"f.dat"_s), old);
        QCOMPARE(install.Read(u"f.dat"_s).isNull(), !existing);
        const bool left = install.Entries(u"."_s).contains(u"temp"_s);
        QCOMPARE(left, fault.kind == WriteFault::Kind::Stop && fault.step != WriteFault::Step::Open);
        if (left && fault.step == WriteFault::Step::Write)
            QCOMPARE(install.Read(u"temp"_s), fresh.first(fault.afterBytes));
    }
    QVERIFY(ReplaceFile(path, scratch, fresh));
    QCOMPARE(install.Read(u"f.dat"_s), fresh);
    QVERIFY(ReplaceFile(path, scratch, QByteArray()));
    QCOMPARE(install.Read(u"f.dat"_s), QByteArray(""));
    QCOMPARE(install.Entries(u"."_s), QStringList{u"f.dat"_s});
}

void tst_Files::replaceDoesNotFollowLinks()
{
    const TestInstall install;
    install.Write(u"elsewhere.txt"_s, "mine");
    QVERIFY(QFile::link(install.Native(u"elsewhere.txt"_s), install.Native(u"temp"_s)));
    QVERIFY(ReplaceFile(Shared().InstallDir + u"f"_s, Shared().InstallDir + u"temp"_s, "new"));
    QCOMPARE(install.Read(u"elsewhere.txt"_s), QByteArray("mine"));
    QCOMPARE(install.Read(u"f"_s), QByteArray("new"));
}

void tst_Files::replaceKeepsWhoMayRead()
{
    const TestInstall install;
    install.Write(u"f"_s, "old");
    const QFile::Permissions shared = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser |
                                      QFile::WriteUser | QFile::ReadGroup | QFile::WriteGroup;
    QVERIFY(QFile::setPermissions(install.Native(u"f"_s), shared));
    QVERIFY(ReplaceFile(Shared().InstallDir + u"f"_s, Shared().InstallDir + u"temp"_s, "new"));
    QCOMPARE(QFile::permissions(install.Native(u"f"_s)), shared);
}

void tst_Files::replaceRefusals()
{
    const TestInstall install;
    const QString dir = Shared().InstallDir;
    QVERIFY(!ReplaceFile(dir + u"gone\\f"_s, dir + u"gone\\temp"_s, "x"));
    QVERIFY(!PathExists(dir + u"gone"_s));
    install.Write(u"folder/keep"_s, "x");
    QVERIFY(!ReplaceFile(dir + u"folder"_s, dir + u"temp"_s, "x"));
    QVERIFY(!ReplaceFile(dir + u"f"_s, dir + u"folder"_s, "x"));
    QCOMPARE(install.Entries(u"."_s), QStringList{u"folder"_s});
    QCOMPARE(install.Entries(u"folder"_s), QStringList{u"keep"_s});
}

void tst_Files::listing()
{
    const TestInstall install;
    for (const QString &name :
         {u"10.txt"_s, u"2.TXT"_s, u"002.txt"_s, u"b2a.txt"_s, u"B10.txt"_s, u"a.txt"_s, u".h.txt"_s,
          u"a.txt.bak"_s, u"txt"_s, u"课10.txt"_s, u"课9.txt"_s, u"99999999999999999999.txt"_s})
        install.Write(u"Lessons/"_s + name, "x");
    install.MakeFolder(u"Lessons/x.txt"_s);
    QStringList names;
    for (const QString &path : ListFiles(Shared().InstallDir + u"lessons\\"_s, u"txt"_s)) {
        QVERIFY(path.startsWith(Shared().InstallDir + u"lessons\\"_s));
        names += path.sliced(Shared().InstallDir.size() + 8);
    }
    QCOMPARE(names, (QStringList{u"002.txt"_s, u"2.TXT"_s, u"10.txt"_s, u"99999999999999999999.txt"_s,
                                 u"a.txt"_s, u"b2a.txt"_s, u"B10.txt"_s, u"课9.txt"_s, u"课10.txt"_s}));
    QCOMPARE(ListFolders(Shared().InstallDir + u"LESSONS"_s),
             QStringList{Shared().InstallDir + u"LESSONS\\x.txt"_s});
    QCOMPARE(ListFiles(Shared().InstallDir + u"none"_s, u"txt"_s), QStringList());
}

void tst_Files::removing()
{
    const TestInstall install;
    QCOMPARE(RemoveFolder(Shared().InstallDir + u"none\\"_s), QString());
    install.Write(u"a/x"_s, "x");
    install.Write(u"a/.hidden"_s, "x");
    QCOMPARE(RemoveFolder(Shared().InstallDir + u"A\\"_s), QString());
    QCOMPARE(install.Entries(u"."_s), QStringList());

    install.Write(u"b/x"_s, "x");
    install.Write(u"b/sub/kept"_s, "x");
    QVERIFY(!RemoveFolder(Shared().InstallDir + u"b"_s).isEmpty());
    QCOMPARE(install.Entries(u"b"_s), QStringList{u"sub"_s});
    QCOMPARE(install.Entries(u"b/sub"_s), QStringList{u"kept"_s});
}

void tst_Files::removingStopsAtLinks()
{
    const TestInstall install;
    install.Write(u"outside/precious"_s, "x");
    install.MakeFolder(u"a"_s);
    QVERIFY(QFile::link(install.Native(u"outside"_s), install.Native(u"a/folder"_s)));
    QVERIFY(QFile::link(install.Native(u"outside/precious"_s), install.Native(u"a/file"_s)));
    QVERIFY(QFile::link(install.Native(u"nowhere"_s), install.Native(u"a/broken"_s)));
    QVERIFY(QFile::link(install.Native(u"outside"_s), install.Native(u"b"_s)));
    QCOMPARE(RemoveFolder(Shared().InstallDir + u"a\\"_s), QString());
    QCOMPARE(RemoveFolder(Shared().InstallDir + u"b\\"_s), QString());
    QCOMPARE(install.Entries(u"."_s), QStringList{u"outside"_s});
    QCOMPARE(install.Entries(u"outside"_s), QStringList{u"precious"_s});
}

QTEST_GUILESS_MAIN(tst_Files)
#include "tst_Files.moc"
