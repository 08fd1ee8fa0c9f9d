#include "core/drills/FallibleKeyLesson.h"
#include "core/drills/KeyLesson.h"
#include "platform/Files.h"
#include "platform/Services.h"
#include "platform/WriteFault.h"
#include "support/TestInstall.h"

#include <QtTest>
#include <random>

using namespace Qt::Literals::StringLiterals;
using namespace Public_Function;

class tst_KeyLesson : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loading_data();
    void loading();
    void loadingNothing();
    void titles_data();
    void titles();
    void manyGroups();
    void anyBytes();
    void missedKeys();
    void missedKeysFollowTheirShare();
    void missedKeysKeepTheOldLesson();
};

void tst_KeyLesson::loading_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QStringList>("groups");
    const QStringList two{u"asdfjkl;"_s, u";lkj"_s};
    QTest::newRow("spaces and tabs") << QByteArray("t\r\n  asdf\tjkl;   ;lkj  \r\n") << u"t"_s << two;
    QTest::newRow("lines") << QByteArray("Home row\n\nasdfjkl;\r\t;lkj\t") << u"Home row"_s << two;
    QTest::newRow("empty title") << QByteArray("\r\nasdfjkl; ;lkj") << u""_s << two;
    QTest::newRow("only a title") << QByteArray("title\r\n") << u"title"_s << QStringList();
    QTest::newRow("blank lines") << QByteArray("title\r\n \t \r\n\t\r\n   \r\n") << u"title"_s
                                 << QStringList();
    QTest::newRow("empty") << QByteArray("") << u""_s << QStringList();
    QTest::newRow("GB18030") << QByteArray("\xC1\xB7\xCF\xB0\r\nasdfjkl; ;lkj") << u"练习"_s << two;
    QTest::newRow("beyond the basic plane")
        << u"t\n𝄞a 𝄞\n"_s.toUtf8() << u"t"_s << QStringList{u"𝄞a"_s, u"𝄞"_s};
    QTest::newRow("other blanks belong to a group")
        << u"t\na\u3000b"_s.toUtf8() << u"t"_s << QStringList{u"a\u3000b"_s};
    QTest::newRow("NUL") << QByteArray("t\na\0b c", 7) << u"t"_s << QStringList{u"a\0b"_s, u"c"_s};
}

void tst_KeyLesson::loading()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, title);
    QFETCH(QStringList, groups);
    const TestInstall install;
    install.Write(u"lesson.txt"_s, file);
    const KeyLessonResult result = LoadKeyLesson(Shared().InstallDir + u"Lesson.TXT"_s);
    QCOMPARE(result.lesson.title, title);
    QCOMPARE(result.lesson.groups, groups);
    QCOMPARE(result.error, groups.isEmpty() ? std::optional(LessonError::NoGroups) : std::nullopt);
}

void tst_KeyLesson::loadingNothing()
{
    const TestInstall install;
    for (const QString &path : {QString(), Shared().InstallDir, Shared().InstallDir + u"none.txt"_s}) {
        const KeyLessonResult result = LoadKeyLesson(path);
        QCOMPARE(result.error, std::optional(LessonError::Missing));
        QVERIFY(result.lesson.groups.isEmpty());
        QCOMPARE(ReadLessonTitle(path), QString());
    }
}

void tst_KeyLesson::titles_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("title");
    QTest::newRow("first line") << QByteArray("Home row\r\nasdf") << u"Home row"_s;
    QTest::newRow("first that is not empty") << QByteArray("\r\n\n\nasdf\r\n") << u"asdf"_s;
    QTest::newRow("blanks are something") << QByteArray("\r\n \r\nasdf\r\n") << u" "_s;
    QTest::newRow("none") << QByteArray("\r\n\r\n") << QString();
}

void tst_KeyLesson::titles()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, title);
    const TestInstall install;
    install.Write(u"lesson.txt"_s, file);
    QCOMPARE(ReadLessonTitle(Shared().InstallDir + u"lesson.txt"_s), title);
}

void tst_KeyLesson::manyGroups()
{
    const TestInstall install;
    install.Write(u"lesson.txt"_s, "t\r\n" + QByteArray("asdf jkl; ").repeated(50000));
    const KeyLessonResult result = LoadKeyLesson(Shared().InstallDir + u"lesson.txt"_s);
    QCOMPARE(result.lesson.groups.size(), qsizetype(100000));
    QCOMPARE(result.lesson.groups.back(), u"jkl;"_s);
}

void tst_KeyLesson::anyBytes()
{
    const TestInstall install;
    std::mt19937 random(11);
    for (int round = 0; round < 500; ++round) {
        QByteArray bytes;
        for (auto left = random() % 200; left > 0; --left)
            bytes += random() % 4 == 0 ? " \t\r\n"[random() % 4] : static_cast<char>(random());
        install.Write(u"lesson.txt"_s, bytes);
        const KeyLessonResult result = LoadKeyLesson(Shared().InstallDir + u"lesson.txt"_s);
        QCOMPARE(result.error.has_value(), result.lesson.groups.isEmpty());
        for (const QString &group : result.lesson.groups)
            QVERIFY(!group.isEmpty() && !group.contains(QRegularExpression(u"[ \t\r\n]"_s)) &&
                    group.isValidUtf16());
    }
}

void tst_KeyLesson::missedKeys()
{
    const TestInstall install;
    const QString name = u"Data/English/T_Character/Standard/02.txt"_s;
    install.Write(name, "old");
    PlatformServices().random.seed(1);
    QVERIFY(WriteFallibleKeyLesson(u"aab;"_s));
    const QByteArray file = install.Read(name);
    QCOMPARE(file.count('\n'), 38);
    QCOMPARE(file.count("\r\n"), 38);
    const QStringList lines = SplitLines(QString::fromUtf8(file));
    QCOMPARE(lines[0], u"fallible key training"_s);
    QCOMPARE(lines[1], QString());
    for (qsizetype block = 2; block < lines.size(); block += 4) {
        const QString &group = lines[block];
        QVERIFY(QRegularExpression(u"^[ab;]{6}$"_s).match(group).hasMatch());
        QCOMPARE(lines[block + 1], group);
        QString reversed = group;
        std::reverse(reversed.begin(), reversed.end());
        QCOMPARE(lines[block + 2], reversed);
        QCOMPARE(lines[block + 3], reversed);
    }
    const KeyLessonResult lesson = LoadKeyLesson(Shared().InstallDir + name);
    QCOMPARE(lesson.lesson.groups.size(), qsizetype(36));
    QCOMPARE(install.Entries(u"Data/English/T_Character/Standard"_s), QStringList{u"02.txt"_s});
}

void tst_KeyLesson::missedKeysFollowTheirShare()
{
    const TestInstall install;
    install.MakeFolder(u"Data/English/T_Character/Standard"_s);
    PlatformServices().random.seed(1);
    qsizetype a = 0;
    qsizetype b = 0;
    for (int round = 0; round < 40; ++round) {
        QVERIFY(WriteFallibleKeyLesson(u"AAAB"_s));
        const QByteArray file = install.Read(u"Data/English/T_Character/Standard/02.txt"_s);
        a += file.count('A');
        b += file.count('B');
    }
    QCOMPARE(a + b, qsizetype(40 * 36 * 6));
    const double share = static_cast<double>(a) / static_cast<double>(a + b);
    QVERIFY2(share > 0.72 && share < 0.78, QByteArray::number(share).constData());
}

void tst_KeyLesson::missedKeysKeepTheOldLesson()
{
    const TestInstall install;
    QVERIFY(!WriteFallibleKeyLesson(u"a"_s)); // no folder
    QCOMPARE(install.Entries(u"."_s), QStringList());
    const QString name = u"Data/English/T_Character/Standard/02.txt"_s;
    install.Write(name, "old");
    QVERIFY(!WriteFallibleKeyLesson(QString()));
    QCOMPARE(install.Read(name), QByteArray("old"));
    CurrentWriteFault() = WriteFault{WriteFault::Step::Write, WriteFault::Kind::Fail, 100};
    const bool written = WriteFallibleKeyLesson(u"a"_s);
    CurrentWriteFault().reset();
    QVERIFY(!written);
    QCOMPARE(install.Read(name), QByteArray("old"));
}

QTEST_GUILESS_MAIN(tst_KeyLesson)
#include "tst_KeyLesson.moc"
