#include "core/shell/UserList.h"
#include "support/TestInstall.h"

#include <QtTest>

using namespace Qt::Literals::StringLiterals;

class tst_UserList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_install = std::make_unique<TestInstall>(); }

    void names()
    {
        const UserList users;
        QCOMPARE(users.Names(), QStringList()); // no file yet
        m_install->Write(u"User.ini"_s, "\r\nnobody\r\nÄnne;\r\n;\r\nBo;x;\n");
        QCOMPARE(users.Names().join(u' '), u"Änne Bo"_s);
        QVERIFY(users.UserExists(u"äNNE"_s) && !users.UserExists(u"nobody"_s));
    }

    void invalidNames()
    {
        QStringList refused = u",.,..,con,Nul.txt,COM1,lpt9"_s.split(u',');
        refused << QString(256, u'x') << QString(86, u'你') << QString(QChar(0xD800));
        for (const QChar c : u"?*;:/\\<>\" \t\r\n\0\x7f\x85\uFEFF"_s)
            refused += u"a"_s + c + u"b"_s;
        for (const QString &name : refused)
            QVERIFY2(UserList().IsInvalidName(name) && !UserList().AddUser(name), qPrintable(name));
        QCOMPARE(m_install->Tree(), QStringList());
        QStringList taken =
            u"a|b Änne 你好 𠮷 J.R. .a Con1 com0 commander !#$%&'()+,-=@[]^_`{}~"_s.split(u' ');
        taken << QString(255, u'x') << QString(85, u'你');
        for (const QString &name : taken)
            QVERIFY2(!UserList().IsInvalidName(name) && UserList().AddUser(name), qPrintable(name));
        QCOMPARE(UserList().Names(), taken);
        QCOMPARE(m_install->Entries(u"Users"_s).size(), taken.size());
    }

    void adding()
    {
        UserList users;
        QVERIFY(users.AddUser(u"Anna"_s) && users.AddUser(u"Änne"_s));
        QVERIFY(!users.AddUser(u"ANNA"_s) && !users.AddUser(u"änne"_s));
        QCOMPARE(m_install->Read(u"user.ini"_s), "Anna;\r\nÄnne;\r\n"_ba);
        m_install->Write(u"user.ini"_s, "\r\nstray\r\nAnna;\r\nBo;mine;\r\n");
        QVERIFY(users.AddUser(u"你"_s));
        QCOMPARE(m_install->Read(u"user.ini"_s), "Anna;\r\nBo;mine;\r\n你;\r\n"_ba);
        QVERIFY(users.MakeFolder(u"ANNA"_s) && !users.MakeFolder(u".."_s));
        QCOMPARE(m_install->Tree().join(u' '), u"Users Users/Anna Users/Änne Users/你 user.ini"_s);
    }

    void deleting()
    {
        UserList users;
        QVERIFY(users.AddUser(u"Anna"_s) && users.AddUser(u"Änne"_s) && users.AddUser(u"Bo"_s));
        m_install->Write(u"Users/Änne/RecordEN.Dat"_s, "x");
        m_install->Write(u"Users/Bo/papers/mine"_s, "x");
        QVERIFY(!users.DeleteUser(u"Cid"_s).deleted);
        const UserList::Deletion all = users.DeleteUser(u"äNNE"_s);
        QVERIFY(all.deleted && all.error.isEmpty());
        QCOMPARE(m_install->Read(u"user.ini"_s), "Anna;\r\nBo;\r\n"_ba);
        const UserList::Deletion part = users.DeleteUser(u"Bo"_s);
        QVERIFY(part.deleted && !part.error.isEmpty()); // says that something stays
        QVERIFY(users.DeleteUser(u"Anna"_s).deleted && !users.DeleteUser(u"Anna"_s).deleted);
        QCOMPARE(m_install->Read(u"user.ini"_s), ""_ba);
        QCOMPARE(m_install->Tree().join(u' '),
                 u"Users Users/Bo Users/Bo/papers Users/Bo/papers/mine user.ini"_s);
    }

    void deletionStaysInside()
    {
        m_install->Write(u"Data/lesson"_s, "x");
        m_install->Write(u"Users/Bo/b"_s, "x");
        m_install->Write(u"user.ini"_s, "x");
        const QStringList before = m_install->Tree();
        const QString names = u"|.|..|..\\Data|../Data|Anna\\..\\Bo|Anna/..|/|\\"_s;
        for (const QString &name : names.split(u'|')) {
            m_install->Write(u"user.ini"_s, name.toUtf8() + ";\r\n");
            QVERIFY(UserList().DeleteUser(name).deleted);
            QCOMPARE(m_install->Tree(), before);
        }
    }

    void unreadableListIsKept()
    {
        UserList users;
        m_install->WriteUnreadable(u"user.ini"_s);
        QVERIFY(!users.AddUser(u"Bo"_s) && !users.DeleteUser(u"Anna"_s).deleted);
        QVERIFY(QFileInfo(m_install->Native(u"user.ini"_s)).size() > 1'000'000);
    }

private:
    std::unique_ptr<TestInstall> m_install;
};

QTEST_GUILESS_MAIN(tst_UserList)
#include "tst_UserList.moc"
