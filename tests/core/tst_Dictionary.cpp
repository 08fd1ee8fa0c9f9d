#include "core/drills/clsEn_IDict.h"
#include "support/DictionaryBytes.h"
#include "support/TestInstall.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

QString Words(const clsEn_IDict &dictionary)
{
    QStringList words;
    for (qint32 i = 0; i < dictionary.GetWordAmount(); ++i)
        words += dictionary.GetWord(i);
    return words.join(u' ');
}

} // namespace

class tst_Dictionary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_install = std::make_unique<TestInstall>(); }

    void wordLists()
    {
        const QByteArray two = ListRecord(1, "art", 2) + ListRecord(2, "sky", 3);
        const QList<std::pair<QByteArray, QString>> lists{
            {two, u"art sky"_s},
            {QByteArray(), QString()},
            {ListRecord(1, "", 1) + ListRecord(2, "{abc}", 1), QString()},
            {ListRecord(1, "", 1) + ListRecord(2, "a{b", 1) + ListRecord(3, "{", 1) + two, u"a{b art sky"_s},
            {two + two, u"art sky art sky"_s},
            {two + "\1\0\0\0\xFF\xFF"_ba + two, u"art sky"_s},
            {ListRecord(1, QByteArray(65535, 'a'), 1) + two, QString(65535, u'a') + u" art sky"_s},
            {two + ListRecord(3, "caf\xC3\xA9", 1), u"art sky café"_s},
            // Alone, the bytes of the last word would pass for UTF-8.
            {ListRecord(1, "\xC1\xB7\xCF\xB0", 1) + ListRecord(2, "\xBC\xFC", 1) +
                 ListRecord(3, "\xC4\xA3", 1),
             u"练习 键 模"_s}};
        for (const auto &[list, words] : lists) {
            clsEn_IDict dictionary;
            m_install->Write(u"D/x.ID"_s, list);
            QCOMPARE(dictionary.InitDictionary(Shared().InstallDir + u"d\\"_s, u"X"_s), !words.isEmpty());
            QCOMPARE(Words(dictionary), words);
        }
        for (qsizetype size = 0; size < two.size(); ++size) { // cut anywhere
            clsEn_IDict dictionary;
            QCOMPARE(Load(dictionary, two.first(size)), size >= two.size() / 2);
            QCOMPARE(Words(dictionary), size < two.size() / 2 ? QString() : u"art"_s);
        }
    }

    void positions()
    {
        clsEn_IDict dictionary;
        WriteEntryFile(m_install->Write(u"x.Dat"_s, ""), {{-5, "& [ɑrt]\n% n. \n# a skill"}});
        QCOMPARE(dictionary.GetWordDifficulty(0), qint16(0)); // nothing is loaded
        QCOMPARE(Words(dictionary) + dictionary.GetExplanation(0), QString());
        QVERIFY(Load(dictionary, ListRecord(-5, "art", -2) + ListRecord(9, "sky", 32767)));
        for (const qint32 outside :
             {-1, 2, std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max()}) {
            QCOMPARE(dictionary.GetWord(outside), QString());
            QCOMPARE(dictionary.GetPhonetic_Symbol(outside), QString());
            QCOMPARE(dictionary.GetExplanation(outside), QString());
            QCOMPARE(dictionary.GetWordDifficulty(outside), qint16(0));
        }
        QCOMPARE(dictionary.GetWordDifficulty(0), qint16(-2));
        QCOMPARE(dictionary.GetWordDifficulty(1), qint16(32767));
        QCOMPARE(dictionary.GetPhonetic_Symbol(0), u"ɑrt"_s);
        QCOMPARE(dictionary.GetExplanation(0), u"n. a skill"_s);
        QCOMPARE(dictionary.GetExplanation(1), QString()); // has no entry
    }

    void entryTexts()
    {
        // What the file says, the phonetic and the explanation that are shown.
        const QList<std::tuple<QByteArray, QString, QString>> cases{
            {"x\n&12abc3\n&zzzz9", u"abc"_s, {}},
            {"% pos\n% n.\n# meaning\n# other", {}, u"n.meaning"_s},
            {"% n. \n\\ abc", {}, u"n. abc"_s},
            {"% n. \n% v. ", {}, {}},
            {"% n. \n%\n# a", {}, u"n. a"_s},
            {"# a\n% n. ", {}, u"a"_s},
            {"% n. \n#\n# a", {}, {}},
            {"% n. \n# ", {}, u"n. "_s},
            {u"&1𝄞a]\n%𝄞n. \n#𝄞b"_s.toUtf8(), u"a"_s, u"n. b"_s},
            {"&1\n&12a3", {}, {}},
            {"&12a\r\n% n. \r\n# a\r", u"a"_s, u"n. \ra\r"_s},
            {"\n\n", {}, {}}};
        std::vector<std::pair<int, QByteArray>> entries;
        QByteArray list;
        for (const auto &[text, phonetic, explanation] : cases) {
            entries.emplace_back(int(entries.size()) + 1, text);
            list += ListRecord(int(entries.size()), "w", 1);
        }
        WriteEntryFile(m_install->Write(u"x.Dat"_s, ""), entries);
        clsEn_IDict dictionary;
        QVERIFY(Load(dictionary, list));
        qint32 index = 0;
        for (const auto &[text, phonetic, explanation] : cases) {
            QCOMPARE(dictionary.GetPhonetic_Symbol(index), phonetic);
            QCOMPARE(dictionary.GetExplanation(index++), explanation);
        }
    }

    void entryFilesThatCannotBeRead()
    {
        const QString path = m_install->Write(u"x.Dat"_s, "");
        WriteEntryFile(path, {{1, "# one"}});
        const QByteArray good = m_install->Read(u"x.Dat"_s);
        clsEn_IDict dictionary;
        QVERIFY(Load(dictionary, ListRecord(1, "art", 1)));
        QCOMPARE(dictionary.GetExplanation(0), u"one"_s);
        {
            WritableDatabase locked(path);
            locked.Run("BEGIN EXCLUSIVE"); // keeps readers out
            QCOMPARE(dictionary.GetExplanation(0), QString());
        }
        QCOMPARE(dictionary.GetExplanation(0), u"one"_s);

        const QByteArray tableLess = QByteArray(good).replace("entry", "entri");
        for (const QByteArray &bad :
             {QByteArray("no database"), QByteArray(""), tableLess, good.first(100)}) {
            m_install->Write(u"x.Dat"_s, bad);
            QVERIFY(Load(dictionary, ListRecord(1, "art", 1)));
            QCOMPARE(dictionary.GetExplanation(0), QString());
        }
        m_install->Write(u"x.Dat"_s, good); // and back again
        QCOMPARE(dictionary.GetExplanation(0), u"one"_s);
    }

    void loadingAgain()
    {
        clsEn_IDict dictionary;
        WriteEntryFile(m_install->Write(u"x.Dat"_s, ""), {{1, "# one"}});
        QVERIFY(Load(dictionary, ListRecord(1, "art", 1)));
        QVERIFY(!dictionary.InitDictionary(Shared().InstallDir, u"none"_s));
        QCOMPARE(Words(dictionary) + dictionary.GetExplanation(0), u"artone"_s);

        WriteEntryFile(m_install->Write(u"y.Dat"_s, ""), {{1, "# two"}});
        m_install->Write(u"y.ID"_s, ListRecord(1, "sky", 1) + ListRecord(1, "sea", 1));
        QVERIFY(dictionary.InitDictionary(Shared().InstallDir, u"y"_s));
        QCOMPARE(Words(dictionary) + dictionary.GetExplanation(1), u"sky seatwo"_s);

        QVERIFY(!Load(dictionary, ListRecord(1, "{", 1)));
        QCOMPARE(Words(dictionary) + dictionary.GetExplanation(0), QString());
    }

private:
    bool Load(clsEn_IDict &dictionary, const QByteArray &list)
    {
        QFile::remove(m_install->Native(u"x.ID"_s)); // to write over a file takes long
        m_install->Write(u"x.ID"_s, list);
        return dictionary.InitDictionary(Shared().InstallDir, u"x"_s);
    }

    std::unique_ptr<TestInstall> m_install;
};

QTEST_GUILESS_MAIN(tst_Dictionary)
#include "tst_Dictionary.moc"
