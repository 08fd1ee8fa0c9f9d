#include "core/drills/FallibleKeyLesson.h"
#include "core/drills/KeyLesson.h"
#include "platform/Services.h"
#include "support/TestInstall.h"

#include <QtTest>

using namespace Qt::Literals::StringLiterals;
using namespace Public_Function;

class tst_KeyLesson : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_install = std::make_unique<TestInstall>(); }

    void loading()
    {
        const QStringList two{u"asdfjkl;"_s, u";lkj"_s};
        const QList<std::tuple<QByteArray, QString, QStringList>> cases{
            {"t\r\n  asdf\tjkl;   ;lkj  \r\n", u"t"_s, two},
            {"Home row\n\nasdfjkl;\r\t;lkj\t", u"Home row"_s, two},
            {"\r\nasdfjkl; ;lkj", u""_s, two},
            {"", u""_s, {}},
            {"title\r\n \t \r\n\t\r\n   \r\n", u"title"_s, {}},
            {"\xC1\xB7\xCF\xB0\r\nasdfjkl; ;lkj", u"练习"_s, two},
            {"t\n𝄞a\u3000 a\0b\n"_ba, u"t"_s, {u"𝄞a\u3000"_s, u"a\0b"_s}},
            {"t\r\n" + "asdf "_ba.repeated(100'000), u"t"_s, QStringList(100'000, u"asdf"_s)}};
        for (const auto &[file, title, groups] : cases) {
            const KeyLessonResult result = Load(file);
            QCOMPARE(result.lesson.title, title);
            QCOMPARE(result.lesson.groups, groups);
            QCOMPARE(result.error, groups.isEmpty() ? std::optional(LessonError::NoGroups) : std::nullopt);
        }
        // Lists call a lesson without a title by its first line that has one.
        for (const auto &[file, title] : {std::pair("Home\r\nasdf"_ba, u"Home"_s),
                                          {"\r\n\n\nasdf\r\n"_ba, u"asdf"_s},
                                          {"\r\n \r\na"_ba, u" "_s},
                                          {"\r\n"_ba, QString()}}) {
            Load(file);
            QCOMPARE(ReadLessonTitle(Shared().InstallDir + u"lesson.txt"_s), title);
        }
        for (const QString &path : {QString(), Shared().InstallDir, Shared().InstallDir + u"none.txt"_s}) {
            QCOMPARE(LoadKeyLesson(path).error, std::optional(LessonError::Missing));
            QCOMPARE(ReadLessonTitle(path), QString());
        }
    }

    void missedKeys()
    {
        const QRegularExpression lesson(
            u"\\Afallible key training\r\n\r\n(((.)(.)(.)(.)(.)(.))\r\n\\2\r\n(\\8\\7\\6\\5\\4\\3)\r\n\\9\r\n){9}\\z"_s);
        m_install->MakeFolder(u"Data/English/T_Character/Standard"_s);
        PlatformServices().random.seed(1);
        QString all;
        for (int round = 0; round < 40; ++round) {
            QVERIFY(WriteFallibleKeyLesson(u"JJJ;"_s));
            const QString file = QString::fromUtf8(m_install->Read(MissedLesson()));
            QVERIFY2(lesson.match(file).hasMatch(), qPrintable(file));
            all += file;
        }
        QCOMPARE(all.count(u'J') + all.count(u';'), 8640);
        QVERIFY(all.count(u'J') > 6220 && all.count(u'J') < 6740); // three of four
    }

    void missedKeysKeepTheOldLesson()
    {
        QVERIFY(!WriteFallibleKeyLesson(u"a"_s)); // no folder
        QCOMPARE(m_install->Tree(), QStringList());
        m_install->Write(MissedLesson(), "old");
        QVERIFY(!WriteFallibleKeyLesson(QString()));
        QCOMPARE(m_install->Read(MissedLesson()), "old"_ba);
    }

private:
    static QString MissedLesson() { return u"Data/English/T_Character/Standard/02.txt"_s; }

    KeyLessonResult Load(const QByteArray &file) const
    {
        m_install->Write(u"lesson.txt"_s, file);
        return LoadKeyLesson(Shared().InstallDir + u"Lesson.TXT"_s);
    }

    std::unique_ptr<TestInstall> m_install;
};

QTEST_GUILESS_MAIN(tst_KeyLesson)
#include "tst_KeyLesson.moc"
