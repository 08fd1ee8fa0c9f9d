#include "core/drills/ArticlePlace.h"
#include "core/drills/KeyLessonPlace.h"
#include "core/drills/WordTrainPlace.h"
#include "core/shell/Public_Define.h"
#include "core/shell/SettingFile.h"
#include "core/shell/UserSettings.h"
#include "platform/Files.h"
#include "support/TestInstall.h"

#include <QtTest>

using namespace Qt::Literals::StringLiterals;
using namespace Public_Function;

class tst_Settings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_install = std::make_unique<TestInstall>(u"Anna"_s); }

    void reading()
    {
        const QList<std::pair<QByteArray, QString>> files{
            {"[MAIN]\r\nensound=2", u"2"_s},
            {" \t[ Main ] x\n\n\t EnSound\t = 2 \t\n", u"2"_s},
            {"EnSound=0\n[Exam]\nEnSound=1\n[Mainz]\nEnSound=3\n", u"def"_s},
            {"[Main]\nA=1\n[B]\nEnSound=5\n[main]\nEnSound=2", u"2"_s}, // a section in two pieces
            {"[Main]\n;EnSound=1\n#x\nEnSound\nEnSound=2\nEnSound=3\n", u"2"_s},
            {"[Main]\nEnSound=\n", u""_s},
            {"[Main]\nEnSound=\" a=b \"\n", u" a=b "_s},
            {"[Main]\nEnSound='a'\n", u"a"_s},
            {"[Main]\nEnSound=\"\n", u"\""_s},
            {"[Main]\nEnSound=a\0b\n"_ba, u"a"_s},
            {"\xEF\xBB\xBF[Main]\nEnSound=\xC3\xA9\n", u"é"_s}};
        for (const auto &[bytes, value] : files) {
            m_install->Write(StoredName(), bytes);
            QCOMPARE(SettingFile(Path()).Text(u"Main"_s, u"EnSound"_s, u"def"_s), value);
        }
        QList<int> numbers;
        for (const QByteArray &text :
             "\"42\"|007abc8|abc||-5|\xD9\xA3|2147483647|2147483648|99999999999999999999"_ba.split('|')) {
            m_install->Write(StoredName(), "[Exam]\r\nLimitTime=" + text + "\r\n");
            numbers += SettingFile(Path()).Integer(u"exam"_s, u"limittime"_s, 10);
        }
        QCOMPARE(numbers, (QList{42, 7, 0, 0, 0, 0, INT_MAX, INT_MAX, INT_MAX}));
        QCOMPARE(SettingFile(Path()).Integer(u"exam"_s, u"missing"_s, 10), 10);
    }

    void valuesComeBack()
    {
        const QString longest(1023, u'x');
        const QString pairs = u"𝄞"_s.repeated(1023);
        const QString edges =
            u"| |\t| a|a\t|\"a\"|'a'|\"\"|\"|\"a'|''a| \"a\" |[Main]|=;#|名 前.txt|\u3000全|\u2028"_s;
        QStringList values = edges.split(u'|') << longest << u' ' + longest.chopped(1) << pairs;
        const QStringList set =
            values + QStringList{longest + u"yz"_s, pairs + u"𝄞"_s, u"a\r\n[Main]\r\nEnSound=0"_s};
        values << longest << pairs << u"a"_s;
        SettingFile settings(Path());
        for (int i = 0; i < set.size(); ++i)
            settings.Set(u"S"_s, QString::number(i), set[i]);
        QVERIFY(settings.Save());
        const SettingFile again(Path());
        for (int i = 0; i < set.size(); ++i)
            QCOMPARE(again.Text(u"S"_s, QString::number(i), u"def"_s), values[i]);
        QCOMPARE(again.Integer(u"Main"_s, u"EnSound"_s, 1), 1);
    }

    void keepsOtherLines()
    {
        // What setting English/NumpadTrain_Index to 5 makes of a file.
        const QList<std::pair<QByteArray, QByteArray>> files{
            {"[ENGLISH]\r\nNumPadTrain_Index = 3 \r\n", "[ENGLISH]\r\nNumPadTrain_Index =5\r\n"},
            {"[English]\nNumPadTrain_Index = \"5\"\n\n\n", "[English]\nNumPadTrain_Index = \"5\"\n\n\n"},
            {"; mine\n\n[English]\nA=1\nstray\n\n[Main]\nB= 2\n",
             "; mine\r\n\r\n[English]\r\nA=1\r\nstray\r\nNumpadTrain_Index=5\r\n\r\n[Main]\r\nB= 2\r\n"},
            {"x\n[Main]\nName=\xC4\xE3\xBA\xC3",
             "x\r\n[Main]\r\nName=\xE4\xBD\xA0\xE5\xA5\xBD\r\n[English]\r\nNumpadTrain_Index=5\r\n"}};
        for (const auto &[before, after] : files) {
            m_install->Write(StoredName(), before);
            SettingFile settings(Path());
            settings.Set(u"English"_s, u"NumpadTrain_Index"_s, 5);
            QVERIFY(settings.Save());
            QCOMPARE(m_install->Read(StoredName()), after);
            QCOMPARE(m_install->Entries(u"Users/Anna"_s), QStringList{u"Setting.ini"_s});
        }
    }

    void savesMeet()
    {
        SettingFile first(Path());
        SettingFile second(Path());
        first.Set(u"Main"_s, u"EnSound"_s, 2);
        second.Set(u"Main"_s, u"ChSound"_s, 1);
        QVERIFY(first.Save() && second.Save());
        first.Set(u"Main"_s, u"ChSound"_s, 0); // what this object never saw changing
        QVERIFY(first.Save());
        QCOMPARE(m_install->Read(u"Users/Anna/setting.ini"_s), "[Main]\r\nEnSound=2\r\nChSound=0\r\n"_ba);
    }

    void saveRefusals()
    {
        SettingFile settings(Path());
        settings.Set(u"Main"_s, u"EnSound"_s, 0);
        QDir(m_install->Native(u"Users/Anna"_s)).removeRecursively();
        QVERIFY(!settings.Save());
        QCOMPARE(m_install->Tree(), QStringList{u"Users"_s});
        m_install->MakeFolder(u"Users/Anna"_s);
        QVERIFY(settings.Save()); // what could not be written was not forgotten
        QCOMPARE(SettingFile(Path()).Integer(u"Main"_s, u"EnSound"_s, 1), 0);
        settings.Set(u"Main"_s, u"EnSound"_s, 2);
        m_install->WriteUnreadable(u"Users/Anna/setting.ini"_s);
        QVERIFY(!settings.Save());
    }

    void userSettings()
    {
        Public_Define &values = Shared();
        values.EnSound = values.ChSound = values.TestSource = values.Frequency = values.OverType = 9;
        values.TestDisplayMode = {9, 9, 9};
        const auto loaded = [&values] {
            LoadSoundSetting();
            LoadTestSetting();
            const auto &[input, output, audition] = values.TestDisplayMode;
            return QList<int>{values.EnSound,  values.ChSound,   values.TestSource, input,
                              output,          audition,         values.ShowOrg,    values.Frequency,
                              values.OverType, values.LimitTime, values.NewLine};
        };
        QCOMPARE(loaded(), (QList{1, 0, 0, 0, 3, 0, 1, 0, 0, 10, 0}));
        QCOMPARE(m_install->Entries(u"Users/Anna"_s), QStringList());
        SaveSoundSetting();
        QCOMPARE(m_install->Read(StoredName()), "[Main]\r\nEnSound=1\r\nChSound=0\r\n"_ba);
        m_install->Write(
            u"Users/Anna/Setting.ini"_s,
            "[Exam]\r\nInComp=1\r\nOutComp=2\r\nAuditionComp=4\r\nShowOrg=0\r\nFrequency=8000\r\n"
            "OverType=1\r\nLimitTime=99999\r\n[Main]\r\nNewLine=1\r\nEnSound=2\r\nChSound=1\r\n");
        QCOMPARE(loaded(), (QList{2, 1, 0, 1, 2, 4, 0, 8000, 1, 32767, 1}));
        Shared().CurrentUserName.clear(); // nobody is logged in
        SaveSoundSetting();
        QCOMPARE(m_install->Tree().join(u' '), u"Users Users/Anna Users/Anna/Setting.ini"_s);
    }

    void movedPath()
    {
        m_install->Write(u"Data/English/a.txt"_s, "x");
        const QList<std::pair<QString, QString>> paths{
            {u"\\old\\data\\english\\a.txt"_s, u"data\\english\\a.txt"_s},
            {u"D:\\Quorvex\\Data\\English\\a.txt"_s, u"Data\\English\\a.txt"_s},
            {u"\\old\\Data\\English\\"_s, u"Data\\English\\"_s},
            {u"\\data\\users\\q\\Data\\English\\a.txt"_s, u"Data\\English\\a.txt"_s}, // parents named alike
            {u"/old/Data/English/a.txt"_s, u"Data\\English\\a.txt"_s}};
        for (const auto &[stored, found] : paths)
            QCOMPARE(FindMovedPath(stored), Shared().InstallDir + found);
        const QStringList asStored{u"\\old\\Data\\English\\b.txt"_s, u"\\old\\Papers\\a.txt"_s, QString(),
                                   Shared().InstallDir + u"data\\ENGLISH\\a.txt"_s};
        for (const QString &stored : asStored)
            QCOMPARE(FindMovedPath(stored), stored);
    }

    // Everything that keeps a full path finds it in the copy of the folder in which the program is now.
    void placesInACopiedFolder()
    {
        const QStringList files{
            u"Data/English/T_Character/Standard/05.txt"_s, u"Data/English/T_Character/Numpad/02.txt"_s,
            u"Data/English/T_Word/Mine/List.ID"_s, u"Data/English/T_Article/Mine/My text.txt"_s};
        QStringList paths = files;
        paths.replaceInStrings(u"/"_s, u"\\"_s);
        const QString old = Shared().InstallDir;
        StoreKeyLessonPlace(MainKeyLessonSettings(), {old + paths[0], 3, 1});
        StoreKeyLessonPlace(KeypadLessonSettings(), {old + paths[1], 4, 1});
        StoreWordTrainPlace({old + u"Data\\English\\T_Word\\Mine\\"_s, u"List"_s, u"List"_s, 5, true, 1});
        StoreArticlePlace({old + paths[3], u"Mine:My text.txt"_s, 6, {}, 1});
        const TestInstall here(u"Anna"_s);
        for (const QString &file : files + QStringList{u"Bitmap/1024_CH.DLL"_s}) {
            m_install->Write(file, "x");
            here.Write(file, "x");
        }
        here.Write(StoredName(), m_install->Read(StoredName()));

        const KeyLessonPlace key = LoadKeyLessonPlace(MainKeyLessonSettings());
        const KeyLessonPlace keypad = LoadKeyLessonPlace(KeypadLessonSettings());
        const WordTrainPlace word = LoadWordTrainPlace();
        const QStringList found{key.lessonFile, keypad.lessonFile,
                                word.dictionaryPath + word.dictionaryFile + u".ID"_s,
                                LoadArticlePlace().articleFile};
        QCOMPARE((QList{key.itemIndex, keypad.itemIndex, word.wordIndex}), (QList{3, 4, 5}));
        for (qsizetype i = 0; i < files.size(); ++i)
            QCOMPARE(found[i], Shared().InstallDir + paths[i]);
        QVERIFY(QFile::remove(here.Native(files[3]))); // what is only there is used there
        QCOMPARE(FindMovedPath(old + paths[3]), old + paths[3]);
    }

private:
    static QString Path() { return Shared().InstallDir + u"users\\anna\\setting.ini"_s; }
    static QString StoredName() { return u"Users/Anna/Setting.ini"_s; }

    std::unique_ptr<TestInstall> m_install;
};

QTEST_GUILESS_MAIN(tst_Settings)
#include "tst_Settings.moc"
