#include "core/drills/clsEn_IDict.h"
#include "fuzz/FuzzTarget.h"
#include "support/DictionaryBytes.h"
#include "support/TestInstall.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// A dictionary of one word; its entry is what is fed.
class OneWord
{
public:
    OneWord()
    {
        m_install.Write(u"list.ID"_s, ListRecord(1, "word", 1));
        WriteEntryFile(m_install.Native(u"list.Dat"_s), {{1, "& [x]"}});
        Require(m_dictionary.InitDictionary(Shared().InstallDir, u"list"_s), "the dictionary is there");
        m_entries = std::make_unique<WritableDatabase>(m_install.Native(u"list.Dat"_s));
        m_entries->Run("PRAGMA journal_mode = MEMORY; PRAGMA synchronous = OFF");
    }
    Q_DISABLE_COPY_MOVE(OneWord)

    clsEn_IDict &With(const QByteArray &entry)
    {
        m_entries->Run("UPDATE entry SET text = CAST(X'" + entry.toHex() + "' AS TEXT)");
        return m_dictionary;
    }

private:
    TestInstall m_install;
    clsEn_IDict m_dictionary;
    std::unique_ptr<WritableDatabase> m_entries;
};

void ReadEntry(const QByteArray &bytes)
{
    static OneWord word;
    clsEn_IDict &dictionary = word.With(bytes);
    for (const QString &text : {dictionary.GetPhonetic_Symbol(0), dictionary.GetExplanation(0)}) {
        Require(text.isValidUtf16(), "an explanation holds whole characters");
        Require(!text.contains(u'\n'), "an explanation is one line");
        Require(text.size() <= bytes.size(), "an explanation is a part of the entry");
    }
}

const FuzzTarget entryTarget("entry", ReadEntry);

} // namespace
