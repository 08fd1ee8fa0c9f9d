#include "core/shell/UserList.h"
#include "platform/WriteFault.h"
#include "support/TestInstall.h"

#include <QtTest>

using namespace Qt::Literals::StringLiterals;

class tst_UserList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void names_data();
    void names();
    void invalid_data();
    void invalid();
    void adding();
    void deleting();
    void deletionStaysInside_data();
    void deletionStaysInside();
    void deletionSaysWhatStays();
    void faults();
};

void tst_UserList::names_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("empty") << QByteArray("") << QStringList();
    QTest::newRow("file order") << QByteArray("Bert;\r\nAnna;\r\n") << QStringList{u"Bert"_s, u"Anna"_s};
    QTest::newRow("other lines") << QByteArray("\r\nnobody\r\nAnna;\r\n;\r\nBo;x;\n")
                                 << QStringList{u"Anna"_s, u"Bo"_s};
    QTest::newRow("GB18030") << QByteArray("\xC4\xE3\xBA\xC3;\r\n") << QStringList{u"你好"_s};
    QTest::newRow("marked") << QByteArray("\xEF\xBB\xBFÄnne;\r\n") << QStringList{u"Änne"_s};
}

void tst_UserList::names()
{
    QFETCH(QByteArray, file);
    QFETCH(QStringList, names);
    const TestInstall install;
    QCOMPARE(UserList().Names(), QStringList()); // no file yet
    install.Write(u"User.ini"_s, file);
    QCOMPARE(UserList().Names(), names);
    for (const QString &name : names)
        QVERIFY(UserList().UserExists(name.toUpper()) && UserList().UserExists(name.toLower()));
    QVERIFY(!UserList().UserExists(u"nobody"_s) && !UserList().UserExists(QString()));
}

void tst_UserList::invalid_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isInvalid");
    for (const QChar c : u"?*;:/\\<>\" \t\r\n\0\x7f\x85"_s)
        QTest::addRow("U+%04x", c.unicode()) << QString(u"a"_s + c + u"b"_s) << true;
    for (const QString &name : {u""_s, u"."_s, u".."_s, u"con"_s, u"Nul.txt"_s, u"COM1"_s, u"lpt9"_s,
                                QString(256, u'x'), QString(86, u'你'), QString(QChar(0xD800))})
        QTest::addRow("refused: %s", qPrintable(name)) << name << true;
    for (const QString &name :
         {u"a|b"_s, u"Änne"_s, u"你好"_s, u"𠮷"_s, u"J.R."_s, u".a"_s, u"Con1"_s, u"com0"_s, u"commander"_s,
          u"!#$%&'()+,-=@[]^_`{}~"_s, QString(255, u'x'), QString(85, u'你')})
        QTest::addRow("taken: %s", qPrintable(name)) << name << false;
}

void tst_UserList::invalid()
{
    QFETCH(QString, name);
    QFETCH(bool, isInvalid);
    const TestInstall install;
    QCOMPARE(UserList().IsInvalidName(name), isInvalid);
    QCOMPARE(UserList().AddUser(name), !isInvalid);
    QCOMPARE(install.Entries(u"Users"_s), isInvalid ? QStringList() : QStringList{name});
    QCOMPARE(UserList().Names(), isInvalid ? QStringList() : QStringList{name});
}

void tst_UserList::adding()
{
    const TestInstall install;
    UserList users;
    QVERIFY(users.AddUser(u"Anna"_s));
    QVERIFY(users.AddUser(u"Änne"_s));
    const QByteArray list = install.Read(u"user.ini"_s);
    QCOMPARE(list, QByteArray("Anna;\r\nÄnne;\r\n"));
    for (const QString &known : {u"ANNA"_s, u"änne"_s})
        QVERIFY(!users.AddUser(known));
    QCOMPARE(install.Read(u"user.ini"_s), list);
    QCOMPARE(install.Entries(u"Users"_s), (QStringList{u"Anna"_s, u"Änne"_s}));

    install.Write(u"user.ini"_s, "\r\nstray\r\nAnna;\r\nBo;mine;\r\n");
    QVERIFY(users.AddUser(u"你"_s));
    QCOMPARE(install.Read(u"user.ini"_s), QByteArray("Anna;\r\nBo;mine;\r\n你;\r\n"));
    QCOMPARE(install.Entries(u"."_s), (QStringList{u"Users"_s, u"user.ini"_s}));
    QDir(install.Native(u"Users/Anna"_s)).removeRecursively();
    QVERIFY(users.MakeFolder(u"Anna"_s) && users.MakeFolder(u"ANNA"_s) && !users.MakeFolder(u".."_s));
    QCOMPARE(install.Entries(u"Users"_s), (QStringList{u"Anna"_s, u"Änne"_s, u"你"_s}));
}

void tst_UserList::deleting()
{
    const TestInstall install;
    UserList users;
    for (const QString &name : {u"Anna"_s, u"Änne"_s, u"Bo"_s})
        QVERIFY(users.AddUser(name));
    install.Write(u"Users/Änne/RecordEN.Dat"_s, "x");
    install.Write(u"Users/Änne/Setting.ini"_s, "x");
    QVERIFY(!users.DeleteUser(u"Cid"_s).deleted);
    const UserList::Deletion deletion = users.DeleteUser(u"äNNE"_s);
    QVERIFY(deletion.deleted);
    QCOMPARE(deletion.error, QString());
    QCOMPARE(install.Read(u"user.ini"_s), QByteArray("Anna;\r\nBo;\r\n"));
    QCOMPARE(install.Entries(u"Users"_s), (QStringList{u"Anna"_s, u"Bo"_s}));
    QVERIFY(users.DeleteUser(u"Bo"_s).deleted && users.DeleteUser(u"Anna"_s).deleted);
    QCOMPARE(install.Read(u"user.ini"_s), QByteArray(""));
    QVERIFY(!users.DeleteUser(u"Anna"_s).deleted);
    QCOMPARE(install.Entries(u"."_s), (QStringList{u"Users"_s, u"user.ini"_s}));
}

void tst_UserList::deletionStaysInside_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : {u""_s, u"."_s, u".."_s, u"..\\Data"_s, u"../Data"_s, u"Anna\\..\\Bo"_s,
                                u"Anna/.."_s, u"/"_s, u"\\"_s})
        QTest::addRow("<%s>", qPrintable(name)) << name;
}

void tst_UserList::deletionStaysInside()
{
    QFETCH(QString, name);
    const TestInstall install;
    install.Write(u"Data/lesson.txt"_s, "x");
    install.Write(u"Users/Anna/a"_s, "x");
    install.Write(u"Users/Bo/b"_s, "x");
    install.Write(u"Users/stray"_s, "x");
    install.Write(u"user.ini"_s, name.toUtf8() + ";\r\n");
    const UserList::Deletion deletion = UserList().DeleteUser(name);
    QVERIFY(deletion.deleted);
    QCOMPARE(install.Read(u"user.ini"_s), QByteArray(""));
    QCOMPARE(install.Entries(u"."_s), (QStringList{u"Data"_s, u"Users"_s, u"user.ini"_s}));
    QCOMPARE(install.Entries(u"Users"_s), (QStringList{u"Anna"_s, u"Bo"_s, u"stray"_s}));
    for (const QString &file : {u"Data/lesson.txt"_s, u"Users/Anna/a"_s, u"Users/Bo/b"_s})
        QVERIFY(QFile::exists(install.Native(file)));
}

void tst_UserList::deletionSaysWhatStays()
{
    const TestInstall install;
    UserList users;
    QVERIFY(users.AddUser(u"Anna"_s));
    install.Write(u"Users/Anna/Setting.ini"_s, "x");
    install.Write(u"Users/Anna/papers/mine.txt"_s, "x");
    const UserList::Deletion deletion = users.DeleteUser(u"Anna"_s);
    QVERIFY(deletion.deleted && !deletion.error.isEmpty());
    QCOMPARE(users.Names(), QStringList());
    QCOMPARE(install.Entries(u"Users/Anna"_s), QStringList{u"papers"_s});
}

void tst_UserList::faults()
{
    const TestInstall install;
    UserList users;
    QVERIFY(users.AddUser(u"Anna"_s));
    for (const auto step : {WriteFault::Step::Open, WriteFault::Step::Write, WriteFault::Step::Rename}) {
        CurrentWriteFault() = WriteFault{step, WriteFault::Kind::Fail, 2};
        const bool added = users.AddUser(u"Bo"_s);
        const UserList::Deletion deletion = users.DeleteUser(u"Anna"_s);
        CurrentWriteFault().reset();
        QVERIFY(!added && !deletion.deleted);
        QCOMPARE(install.Read(u"user.ini"_s), QByteArray("Anna;\r\n"));
        QCOMPARE(install.Entries(u"Users"_s), QStringList{u"Anna"_s});
        QCOMPARE(install.Entries(u"."_s), (QStringList{u"Users"_s, u"user.ini"_s}));
    }
    QVERIFY(QFile::remove(install.Native(u"user.ini"_s)));
    install.MakeFolder(u"user.ini"_s); // there, but not to be read
    QVERIFY(!users.AddUser(u"Bo"_s) && !users.DeleteUser(u"Anna"_s).deleted);
}

QTEST_GUILESS_MAIN(tst_UserList)
#include "tst_UserList.moc"
