#include "core/shell/Public_Define.h"
#include "core/speedtest/TestMaterial.h"
#include "support/TestInstall.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Place = TestMaterial::Place;
using Language = TestMaterial::Language;
using Class = TestMaterial::Class;

class tst_TestMaterial : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Lists()
    {
        const TestInstall install;
        for (const char *file :
             {"English/E_General/10.txt", "English/E_General/2.TXT", "English/E_General/x.doc",
              "Chinese/Professional/Law/a.txt", "Chinese/Professional/art 10/b.txt",
              "Chinese/Professional/art 9/c.md", "Chinese/Professional/loose.txt"})
            install.Write(u"Data/"_s + QLatin1StringView(file), "x");
        const Place general;
        QCOMPARE(TestMaterial::Files(general), QStringList({u"2.TXT"_s, u"10.txt"_s}));
        QCOMPARE(TestMaterial::FilePath(general, u"2.TXT"_s),
                 Shared().InstallDir + u"Data\\English\\E_General\\2.TXT"_s);
        QCOMPARE(TestMaterial::Folders(Language::English), QStringList());
        QCOMPARE(TestMaterial::Folders(Language::Chinese), QStringList({u"art 9"_s, u"art 10"_s, u"Law"_s}));
        QCOMPARE(TestMaterial::Files({Language::Chinese, Class::Professional, u"Law"_s}),
                 QStringList{u"a.txt"_s});
        QCOMPARE(TestMaterial::Files({Language::Chinese, Class::Professional, QString()}), QStringList());
        QCOMPARE(TestMaterial::Files({Language::Chinese, Class::Professional, u"art 9"_s}), QStringList());
    }

    void APathHasAPlace_data()
    {
        QTest::addColumn<QString>("path"); // below the install folder, or one that starts with a separator
        QTest::addColumn<Place>("place");
        const auto professional = [](Language language, const QString &folder) {
            return Place{language, Class::Professional, folder};
        };
        QTest::newRow("none") << QString() << Place();
        QTest::newRow("default") << u"Data\\English\\E_General\\lunch.txt"_s << Place();
        QTest::newRow("Chinese") << u"data\\CHINESE\\E_General\\a.txt"_s
                                 << Place{Language::Chinese, Class::General, QString()};
        QTest::newRow("a field, spelled differently")
            << u"data\\chinese\\PROFESSIONAL\\law\\a.txt"_s << professional(Language::Chinese, u"Law"_s);
        QTest::newRow("a doubled separator")
            << u"Data\\English\\\\Professional\\IT\\a.txt"_s << professional(Language::English, u"IT"_s);
        QTest::newRow("deeper") << u"Data\\English\\Professional\\IT\\New\\a.txt"_s
                                << professional(Language::English, u"IT"_s);
        QTest::newRow("beside the fields")
            << u"Data\\English\\Professional\\a.txt"_s << professional(Language::English, QString());
        QTest::newRow("a user's own") << u"/home/professional/a.txt"_s << Place();
        QTest::newRow("another install folder")
            << u"/old/Data/Chinese/Professional/Law/a.txt"_s << professional(Language::Chinese, u"Law"_s);
    }

    void APathHasAPlace()
    {
        QFETCH(QString, path);
        const TestInstall install;
        install.MakeFolder(u"Data/Chinese/Professional/Law"_s);
        if (!path.isEmpty() && !path.startsWith(u'/'))
            path.prepend(Shared().InstallDir);
        QTEST(TestMaterial::PlaceOf(path), "place");
    }

    void AFolderAboveTheProgramSaysNothing()
    {
        const TestInstall install;
        Shared().InstallDir += u"Data\\Chinese\\Quorvex\\"_s;
        QVERIFY(TestMaterial::PlaceOf(TestMaterial::DefaultFile()) == Place());
    }

    void Samples()
    {
        const TestInstall install;
        install.Write(u"Data/Appendix/halvern.TXT"_s, "x");
        QVERIFY(Public_Function::FileExists(TestMaterial::SampleFile(3)));
        QVERIFY(TestMaterial::SampleFile(0).endsWith(u"\\data\\Appendix\\Sweden.txt"));
        QCOMPARE(TestMaterial::SampleFile(4) + TestMaterial::SampleFile(-1), QString());
    }
};

QTEST_GUILESS_MAIN(tst_TestMaterial)
#include "tst_TestMaterial.moc"
