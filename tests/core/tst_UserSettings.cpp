#include "core/shell/UserSettings.h"
#include "support/TestInstall.h"

#include <QtTest>

using namespace Qt::Literals::StringLiterals;
using namespace Public_Function;

class tst_UserSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void places();
    void newUser();
    void storedUser();
    void sound();
    void movedPath_data();
    void movedPath();
};

void tst_UserSettings::places()
{
    const TestInstall install(u"Anna"_s);
    QCOMPARE(UserDir(), Shared().InstallDir + u"Users\\Anna\\"_s);
    QCOMPARE(SettingFilePath(), UserDir() + u"Setting.ini"_s);
}

void tst_UserSettings::newUser()
{
    const TestInstall install(u"Anna"_s);
    Public_Define &values = Shared();
    values.EnSound = values.ChSound = values.TestSource = values.Frequency = values.OverType =
        values.NewLine = 9;
    values.TestDisplayMode = {9, 9, 9};
    values.ShowOrg = false;
    values.LimitTime = 9;
    LoadSoundSetting();
    LoadTestSetting();
    QCOMPARE(values.EnSound, 1);
    QCOMPARE(values.ChSound, 0);
    QCOMPARE(values.TestSource, 0);
    QCOMPARE(values.TestDisplayMode, (std::array<int, 3>{0, 3, 0}));
    QCOMPARE(values.ShowOrg, true);
    QCOMPARE(values.Frequency + values.OverType + values.NewLine, 0);
    QCOMPARE(values.LimitTime, qint16(10));
    QCOMPARE(install.Entries(u"Users/Anna"_s), QStringList());
}

void tst_UserSettings::storedUser()
{
    const TestInstall install(u"Anna"_s);
    install.Write(u"Users/Anna/Setting.ini"_s,
                  "[Exam]\r\nInComp=1\r\nOutComp=2\r\nAuditionComp=4\r\nShowOrg=0\r\n"
                  "Frequency=8000\r\nOverType=1\r\nLimitTime=99999\r\n"
                  "[Main]\r\nNewLine=1\r\n");
    LoadTestSetting();
    QCOMPARE(Shared().TestDisplayMode, (std::array<int, 3>{1, 2, 4}));
    QCOMPARE(Shared().ShowOrg, false);
    QCOMPARE(Shared().Frequency, 8000);
    QCOMPARE(Shared().OverType, 1);
    QCOMPARE(Shared().LimitTime, qint16(32767));
    QCOMPARE(Shared().NewLine, 1);
}

void tst_UserSettings::sound()
{
    const TestInstall install(u"Anna"_s);
    Shared().EnSound = 2;
    Shared().ChSound = 1;
    SaveSoundSetting();
    QCOMPARE(install.Read(u"Users/Anna/Setting.ini"_s), QByteArray("[Main]\r\nEnSound=2\r\nChSound=1\r\n"));
    Shared().CurrentUserName.clear();
    Shared().EnSound = 0;
    SaveSoundSetting();
    LoadSoundSetting();
    QCOMPARE(Shared().EnSound, 0); // nobody is logged in
    QCOMPARE(install.Entries(u"Users"_s), QStringList{u"Anna"_s});
    Shared().CurrentUserName = u"ANNA"_s;
    LoadSoundSetting();
    QCOMPARE(Shared().EnSound, 2);
}

void tst_UserSettings::movedPath_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("found"); // below InstallDir; empty: as stored
    QTest::newRow("moved") << u"\\old\\data\\english\\a.txt"_s << u"data\\english\\a.txt"_s;
    QTest::newRow("other system") << u"D:\\Quorvex\\Data\\English\\a.txt"_s << u"Data\\English\\a.txt"_s;
    QTest::newRow("folder") << u"\\old\\Data\\English\\"_s << u"Data\\English\\"_s;
    QTest::newRow("parent named alike")
        << u"\\data\\users\\q\\Data\\English\\a.txt"_s << u"Data\\English\\a.txt"_s;
    QTest::newRow("native") << u"/old/Data/English/a.txt"_s << u"Data\\English\\a.txt"_s;
    QTest::newRow("gone everywhere") << u"\\old\\Data\\English\\b.txt"_s << QString();
    QTest::newRow("not the program's own") << u"\\old\\Papers\\a.txt"_s << QString();
    QTest::newRow("empty") << QString() << QString();
}

void tst_UserSettings::movedPath()
{
    QFETCH(QString, stored);
    QFETCH(QString, found);
    const TestInstall install;
    install.Write(u"Data/English/a.txt"_s, "x");
    QCOMPARE(FindMovedPath(stored), found.isEmpty() ? stored : Shared().InstallDir + found);
    const QString present = Shared().InstallDir + u"data\\ENGLISH\\a.txt"_s;
    QCOMPARE(FindMovedPath(present), present);
}

QTEST_GUILESS_MAIN(tst_UserSettings)
#include "tst_UserSettings.moc"
