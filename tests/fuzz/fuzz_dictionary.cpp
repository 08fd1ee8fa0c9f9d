#include "core/drills/clsEn_IDict.h"
#include "fuzz/FuzzTarget.h"
#include "support/DictionaryBytes.h"
#include "support/TestInstall.h"
#include "ui/shell/HelpBook.h"

using namespace Qt::Literals::StringLiterals;

namespace {

void ReadWordList(const QByteArray &bytes)
{
    static const TestInstall install;
    install.Write(u"list.ID"_s, bytes);
    clsEn_IDict dictionary;
    const bool any = dictionary.InitDictionary(Shared().InstallDir, u"list"_s);
    const qint32 amount = dictionary.GetWordAmount();
    Require(any == (amount > 0), "a list with a word is a list");
    Require(amount * qsizetype(11) <= bytes.size(), "a word takes 11 bytes");
    for (qint32 index = 0; index < amount; ++index) {
        const QString word = dictionary.GetWord(index);
        Require(!word.isEmpty() && word.isValidUtf16(), "a word has whole characters");
    }
    Require(dictionary.GetWord(amount).isEmpty(), "there is no word outside the list");
    Require(dictionary.GetExplanation(0).isEmpty(), "without entries, no word is explained");
}

const FuzzTarget wordListTarget("wordlist", ReadWordList);

/// A dictionary of one word; its entry is what is fed.
void ReadEntry(const QByteArray &bytes)
{
    static const TestInstall install;
    static const QString listPath = install.Write(u"list.ID"_s, ListRecord(1, "word", 1));
    static WritableDatabase entries(install.Native(u"list.Dat"_s));
    static clsEn_IDict dictionary;
    if (dictionary.GetWordAmount() == 0) {
        entries.Run("PRAGMA journal_mode = MEMORY; PRAGMA synchronous = OFF");
        entries.Run("CREATE TABLE entry(id INTEGER PRIMARY KEY, text TEXT)");
        Require(dictionary.InitDictionary(Shared().InstallDir, u"list"_s), "the dictionary is there");
    }
    entries.Run("REPLACE INTO entry VALUES(1, CAST(X'" + bytes.toHex() + "' AS TEXT))");
    for (const QString &text : {dictionary.GetPhonetic_Symbol(0), dictionary.GetExplanation(0)}) {
        Require(text.isValidUtf16(), "an explanation holds whole characters");
        Require(!text.contains(u'\n'), "an explanation is one line");
        Require(text.size() <= bytes.size(), "an explanation is a part of the entry");
    }
}

const FuzzTarget entryTarget("entry", ReadEntry);

/// The same file as the entries of a dictionary, as the help and as a skin library.
void ReadDatabase(const QByteArray &bytes)
{
    static const TestInstall install;
    static const QString listPath = install.Write(u"list.ID"_s, ListRecord(1, "word", 1));
    const QString path = install.Write(u"list.Dat"_s, bytes);
    clsEn_IDict dictionary;
    Require(dictionary.InitDictionary(Shared().InstallDir, u"list"_s), "the words need no entries");
    Require(dictionary.GetExplanation(0).isValidUtf16(), "an explanation holds whole characters");

    const HelpBook book(path);
    qsizetype index = 0;
    for (const HelpBook::Page &page : book.Pages()) {
        Require(page.text.isValidUtf16() && page.title.isValidUtf16(), "a page holds whole characters");
        Require(book.IndexOf(page.name) <= index++, "a page is found by its name");
    }

    const SqliteFile library(path);
    library.Query("SELECT png FROM bitmap WHERE name = ? AND scale = ?", {u"MAIN_BG"_s, 1},
                  [&](const SqliteFile::Row &row) { return row.Bytes(0).size() > bytes.size(); });
}

const FuzzTarget databaseTarget("database", ReadDatabase);

} // namespace
