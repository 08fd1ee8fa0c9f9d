#include "platform/Paths.h"
#include "support/TestInstall.h"

#include <QtTest>

using namespace Qt::Literals::StringLiterals;
using namespace Public_Function;

class tst_Paths : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void resolve_data();
    void resolve();
    void followsTheDisk();
    void absent();

private:
    TestInstall m_install;
};

void tst_Paths::initTestCase()
{
    for (const char *file : {"Bitmap/1024_CH.DLL", "Users/Anna/Setting.ini", "Data/a.txt", "data/b.txt",
                             "Names/READ.txt", "Names/read.TXT", "Names/Größe.txt", "Names/[x]*?.txt"})
        m_install.Write(QString::fromUtf8(file), "x");
}

void tst_Paths::resolve_data()
{
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("found");
    QTest::newRow("as it is") << u"Bitmap\\1024_CH.DLL"_s << u"Bitmap/1024_CH.DLL"_s;
    QTest::newRow("case of file") << u"Bitmap\\1024_ch.dll"_s << u"Bitmap/1024_CH.DLL"_s;
    QTest::newRow("case of folder") << u"bitmap\\1024_CH.dll"_s << u"Bitmap/1024_CH.DLL"_s;
    QTest::newRow("doubled separators")
        << u"\\Users\\\\ANNA\\\\\\setting.ini"_s << u"Users/Anna/Setting.ini"_s;
    QTest::newRow("mixed separators") << u"users/anna\\setting.ini"_s << u"Users/Anna/Setting.ini"_s;
    QTest::newRow("folder keeps its separator") << u"USERS\\anna\\"_s << u"Users/Anna/"_s;
    QTest::newRow("exact folder first") << u"data\\B.TXT"_s << u"data/b.txt"_s;
    QTest::newRow("exact file first") << u"names\\read.TXT"_s << u"Names/read.TXT"_s;
    QTest::newRow("first in name order") << u"Names\\Read.Txt"_s << u"Names/READ.txt"_s;
    QTest::newRow("beyond ASCII") << u"names\\GRÖßE.TXT"_s << u"Names/Größe.txt"_s;
    QTest::newRow("no pattern") << u"names\\[X]*?.txt"_s << u"Names/[x]*?.txt"_s;
    QTest::newRow("a pattern that would match") << u"names\\READ*"_s << u"Names/READ*"_s;
    QTest::newRow("new file") << u"users\\anna\\New.Dat"_s << u"Users/Anna/New.Dat"_s;
    QTest::newRow("new folder") << u"users\\Bert\\Setting.ini"_s << u"Users/Bert/Setting.ini"_s;
}

void tst_Paths::resolve()
{
    QFETCH(QString, asked);
    QFETCH(QString, found);
    QCOMPARE(NativePath(Shared().InstallDir + asked), m_install.Native(found));
}

void tst_Paths::followsTheDisk()
{
    const QString asked = Shared().InstallDir + u"moving\\file.txt"_s;
    for (int round = 0; round < 20; ++round) {
        m_install.Write(u"Moving/FILE.txt"_s, "x");
        QVERIFY(FileExists(asked));
        QVERIFY(
            QFile::rename(m_install.Native(u"Moving/FILE.txt"_s), m_install.Native(u"Moving/File.TXT"_s)));
        QCOMPARE(NativePath(asked), m_install.Native(u"Moving/File.TXT"_s));
        QVERIFY(QFile::remove(m_install.Native(u"Moving/File.TXT"_s)));
        QVERIFY(!FileExists(asked));
    }
}

void tst_Paths::absent()
{
    QVERIFY(!FileExists(QString()) && !PathExists(QString()));
    QVERIFY(!FileExists(Shared().InstallDir) && PathExists(Shared().InstallDir));
    QVERIFY(PathExists(Shared().InstallDir + u"users\\anna"_s));
    QVERIFY(!PathExists(Shared().InstallDir + u"users\\anna\\setting.ini\\"_s));
    QVERIFY(!FileExists(Shared().InstallDir + QString(5000, u'x')));
    QCOMPARE(NativePath(QString()), QString());
    QCOMPARE(ProductPath(u"/opt/quorvex/"_s), u"\\opt\\quorvex\\"_s);
    m_install.Write(u"native\\name.txt"_s, "x"); // one file: a chooser may return such a name
    QVERIFY(FileExists(m_install.Native(u"native\\name.txt"_s)));
}

QTEST_GUILESS_MAIN(tst_Paths)
#include "tst_Paths.moc"
