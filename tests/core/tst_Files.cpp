#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/SharedFolder.h"
#include "support/TestInstall.h"

#include <QtTest>
#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::Literals::StringLiterals;
using namespace Public_Function;

class tst_Files : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nativePaths()
    {
        const TestInstall install;
        const QString files =
            u"Users/Anna/Setting.ini Data/a.txt data/b.txt Names/READ.txt Names/read.TXT Names/Größe"_s;
        for (const QString &file : files.split(u' '))
            install.Write(file, "x");
        const QList<std::pair<QString, QString>> paths{
            {u"\\Users\\\\ANNA\\\\\\setting.ini"_s, u"Users/Anna/Setting.ini"_s},
            {u"USERS\\anna\\"_s, u"Users/Anna/"_s},
            {u"data\\B.TXT"_s, u"data/b.txt"_s},         // the exact folder first
            {u"names\\read.TXT"_s, u"Names/read.TXT"_s}, // the exact file first
            {u"Names\\Read.Txt"_s, u"Names/READ.txt"_s}, // else the first by name
            {u"names\\GRÖßE"_s, u"Names/Größe"_s},       // case beyond ASCII
            {u"names\\READ*"_s, u"Names/READ*"_s},       // no pattern
            {u"users\\Bert\\Setting.ini"_s, u"Users/Bert/Setting.ini"_s}};
        for (const auto &[asked, found] : paths)
            QCOMPARE(NativePath(Shared().InstallDir + asked), install.Native(found));

        const QString dir = Shared().InstallDir;
        QVERIFY(!FileExists(QString()) && !PathExists(QString()) && NativePath(QString()).isEmpty());
        QVERIFY(!FileExists(dir) && PathExists(dir) && PathExists(dir + u"users\\anna"_s));
        QVERIFY(!PathExists(dir + u"users\\anna\\setting.ini\\"_s) && !FileExists(dir + QString(5000, u'x')));
        install.Write(u"native\\name.txt"_s, "x"); // one file: a chooser may return such a name
        QVERIFY(FileExists(install.Native(u"native\\name.txt"_s)));
    }

    void decodeAndSplit()
    {
        const QString sample = u"naïve 你好 𝄞"_s;
        QList<std::pair<QByteArray, QString>> texts{{sample.toUtf8(), sample},
                                                    {"\xC4\xE3\x94\x32\xBE\x34 ok", u"你𝄞 ok"_s},
                                                    {"a\0b"_ba, u"a\0b"_s},
                                                    {"\xFF\xFE\x34\xD8\x41\0"_ba, u"\uFFFDA"_s},
                                                    {"\xC4\xE3\xBA\xC3\xBA", u"你好\uFFFD"_s},
                                                    {"z\xFFz" + u"ﬁ"_s.toUtf8(), u"z\uFFFDzﬁ"_s}};
        using enum QStringConverter::Encoding;
        for (const auto encoding : {Utf8, Utf16LE, Utf16BE, Utf32LE, Utf32BE})
            texts.append({QStringEncoder(encoding, QStringConverter::Flag::WriteBom).encode(sample), sample});
        for (const auto &[bytes, text] : texts)
            QCOMPARE(DecodeText(bytes), text);
        QCOMPARE(SplitLines(u"a\r\nb\n\r\r\n\nc\rd\n"_s).join(u'|'), u"a|b||||c|d"_s);
        QCOMPARE(SplitLines(QString()), QStringList());
    }

    void replaceTouchesNothingElse()
    {
        const TestInstall install;
        install.Write(u"elsewhere"_s, "mine");
        install.Write(u"f"_s, "old");
        install.Write(u"folder/keep"_s, "x");
        const auto shared = QFile::Permissions::fromInt(0x6660);
        QVERIFY(QFile::setPermissions(install.Native(u"f"_s), shared));
        QVERIFY(QFile::link(install.Native(u"elsewhere"_s), install.Native(u"temp"_s)));
        QVERIFY(Replace("new"));
        QCOMPARE(install.Read(u"elsewhere"_s) + install.Read(u"f"_s), "minenew"_ba);
        QCOMPARE(QFile::permissions(install.Native(u"f"_s)), shared); // who may read it may do so still
        const QStringList before = install.Tree();
        const QString dir = Shared().InstallDir;
        QVERIFY(!ReadFile(QString()) && !ReadFile(dir) && !ReadFile(dir + u"none"_s));
        QVERIFY(!ReplaceFile(dir + u"gone\\f"_s, dir + u"gone\\temp"_s, "x"));
        QVERIFY(!ReplaceFile(dir + u"folder"_s, dir + u"temp"_s, "x"));
        QVERIFY(!ReplaceFile(dir + u"f"_s, dir + u"folder"_s, "x"));
        QCOMPARE(install.Tree(), before);
    }

#ifdef Q_OS_UNIX
    void sharedByAGroup()
    {
        const TestInstall install;
        const QString dir = Shared().InstallDir;
        install.Write(u"shared/old"_s, "old");
        install.MakeFolder(u"own"_s);
        QVERIFY(chmod(Local(install, u"shared"_s), 02775) == 0);
        QVERIFY(chmod(Local(install, u"shared/old"_s), 0600) == 0);
        const mode_t mask = umask(077); // the group gets what the person would not give
        const bool made = ReplaceFile(dir + u"shared\\old"_s, dir + u"shared\\tmp"_s, "new") &&
                          MakeFolder(dir + u"shared\\a\\b\\"_s) && MakeFolder(dir + u"own\\a"_s) &&
                          ReplaceFile(dir + u"shared\\a\\b\\f"_s, dir + u"shared\\a\\b\\tmp"_s, "x") &&
                          ReplaceFile(dir + u"own\\a\\f"_s, dir + u"own\\a\\tmp"_s, "x");
        umask(mask);
        QVERIFY(made);
        for (const auto &[name, mode] : {std::pair(u"shared/old"_s, 0660u),
                                         {u"shared/a"_s, 02770u},
                                         {u"shared/a/b"_s, 02770u},
                                         {u"shared/a/b/f"_s, 0660u},
                                         {u"own/a"_s, 0700u},
                                         {u"own/a/f"_s, 0600u}}) {
            struct stat found = {};
            QVERIFY(stat(Local(install, name), &found) == 0);
            QVERIFY2((found.st_mode & 07777) == mode, qPrintable(name));
        }
    }

    void replaceBehindALink()
    {
        const TestInstall install;
        install.MakeFolder(u"there"_s);
        for (const QByteArray &content : {"first"_ba, "second"_ba}) { // it leads to nothing, then to a file
            if (content == "first")
                QVERIFY(symlink("there/real", Local(install, u"f"_s)) == 0);
            QVERIFY(Replace(content));
            QCOMPARE(install.Read(u"there/real"_s), content);
            QVERIFY(QFileInfo(install.Native(u"f"_s)).isSymLink());
        }
        QVERIFY(chmod(Local(install, u"."_s), 0770) == 0); // now anybody of the group may have put it there
        QVERIFY(Replace("third"));
        QCOMPARE(install.Read(u"there/real"_s) + install.Read(u"f"_s), "secondthird"_ba);
        QCOMPARE(install.Tree().join(u' '), u"f there there/real"_s);
    }
#endif

    void listing()
    {
        const TestInstall install;
        const QStringList sorted =
            u"002.txt 2.TXT 10.txt 99999999999999999999.txt a.txt b2a.txt B10.txt 课9.txt 课10.txt"_s.split(
                u' ');
        for (const QString &name : sorted + QStringList{u".h.txt"_s, u"a.txt.bak"_s, u"txt"_s})
            install.Write(u"Lessons/"_s + name, "x");
        install.MakeFolder(u"Lessons/x.txt"_s);
        const QString folder = Shared().InstallDir + u"lessons\\"_s;
        QCOMPARE(ListFiles(folder, u"txt"_s).join(QString()), folder + sorted.join(folder));
        QCOMPARE(ListFolders(folder.chopped(1)), QStringList{folder + u"x.txt"_s});
        QCOMPARE(ListFiles(folder + u"none"_s, u"txt"_s), QStringList());
    }

    void removing()
    {
        const TestInstall install;
        QCOMPARE(RemoveFolder(Shared().InstallDir + u"none\\"_s), QString());
        install.Write(u"outside/precious"_s, "x");
        install.Write(u"a/.hidden"_s, "x");
        for (const auto &[target, link] : {std::pair(u"outside"_s, u"a/folder"_s),
                                           {u"outside/precious"_s, u"a/file"_s},
                                           {u"nowhere"_s, u"a/broken"_s},
                                           {u"outside"_s, u"b"_s}})
            QVERIFY(QFile::link(install.Native(target), install.Native(link)));
        install.Write(u"c/x"_s, "x");
        install.Write(u"c/sub/kept"_s, "x");
        for (const QString &folder : {u"A\\"_s, u"b\\"_s, u"c"_s})
            QCOMPARE(RemoveFolder(Shared().InstallDir + folder).isEmpty(), folder != u"c"_s);
        QCOMPARE(install.Tree().join(u' '), u"c c/sub c/sub/kept outside outside/precious"_s);
    }

private:
    static QByteArray Local(const TestInstall &install, const QString &name)
    {
        return QFile::encodeName(install.Native(name));
    }
    static bool Replace(const QByteArray &bytes)
    {
        return ReplaceFile(Shared().InstallDir + u"f"_s, Shared().InstallDir + u"temp"_s, bytes);
    }
};

QTEST_GUILESS_MAIN(tst_Files)
#include "tst_Files.moc"
