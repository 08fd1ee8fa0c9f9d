#include "core/drills/clsEn_IDict.h"
#include "fuzz/FuzzTarget.h"
#include "support/TestInstall.h"

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
        dictionary.GetWordDifficulty(index);
    }
    for (const qint32 outside : {-1, amount}) {
        Require(dictionary.GetWord(outside).isEmpty(), "there is no word outside the list");
        Require(dictionary.GetWordDifficulty(outside) == 0, "there is no difficulty outside the list");
    }
    Require(dictionary.GetExplanation(0).isEmpty(), "without entries, no word is explained");
}

const FuzzTarget wordListTarget("wordlist", ReadWordList);

} // namespace
