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
        for (const char *file : {"Chinese/Professional/Law/a.txt", "Chinese/Professional/art 10/b.txt",
                                 "Chinese/Professional/loose.txt", "Appendix/halvern.TXT"})
            install.Write(u"Data/"_s + QLatin1StringView(file), "x");
        QCOMPARE(TestMaterial::Folders(Language::English), QStringList());
        QCOMPARE(TestMaterial::Folders(Language::Chinese).join(u','), u"art 10,Law"_s);
        QCOMPARE(TestMaterial::Files({Language::Chinese, Class::Professional, {}}), QStringList());
        QVERIFY(Public_Function::FileExists(TestMaterial::SampleFile(3)));
        QCOMPARE(TestMaterial::SampleFile(4) + TestMaterial::SampleFile(-1), QString());
    }

    void APathHasAPlace()
    {
        const TestInstall install;
        install.MakeFolder(u"Data/Chinese/Professional/Law"_s);
        const QString dir = Shared().InstallDir;
        const Place law{Language::Chinese, Class::Professional, u"Law"_s};
        const Place it{Language::English, Class::Professional, u"IT"_s};
        const QList<std::pair<QString, Place>> places{
            {QString(), Place()},
            {TestMaterial::DefaultFile(), Place()},
            {dir + u"data\\CHINESE\\E_General\\a.txt"_s, {Language::Chinese, Class::General, QString()}},
            {dir + u"data\\chinese\\PROFESSIONAL\\law\\a.txt"_s, law},
            {dir + u"Data\\English\\\\Professional\\IT\\New\\a.txt"_s, it},
            {dir + u"Data\\English\\Professional\\a.txt"_s, {it.language, it.materialClass, QString()}},
            {u"/home/professional/a.txt"_s, Place()},
            {u"/old/Data/Chinese/Professional/Law/a.txt"_s, law}};
        for (const auto &[path, place] : places)
            QVERIFY2(TestMaterial::PlaceOf(path) == place, qPrintable(path));
        Shared().InstallDir += u"Data\\Chinese\\Quorvex\\"_s; // a folder above the program says nothing
        QVERIFY(TestMaterial::PlaceOf(TestMaterial::DefaultFile()) == Place());
    }
};

QTEST_GUILESS_MAIN(tst_TestMaterial)
#include "tst_TestMaterial.moc"
