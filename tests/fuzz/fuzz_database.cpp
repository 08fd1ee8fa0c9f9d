#include "core/drills/clsEn_IDict.h"
#include "fuzz/FuzzTarget.h"
#include "support/DictionaryBytes.h"
#include "support/TestInstall.h"
#include "ui/shell/HelpBook.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// The same file as the entries of a dictionary, as the help and as a skin library.
void ReadDatabase(const QByteArray &bytes)
{
    static const TestInstall install;
    static const QString listPath = install.Write(u"list.ID"_s, ListRecord(1, "word", 1));
    const QString path = install.Write(u"list.Dat"_s, bytes);
    clsEn_IDict dictionary;
    Require(dictionary.InitDictionary(Shared().InstallDir, u"list"_s), "the words need no entries");
    Require(dictionary.GetExplanation(0).isValidUtf16(), "an explanation holds whole characters");
    Require(dictionary.GetPhonetic_Symbol(0).isValidUtf16(), "a phonetic holds whole characters");

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
