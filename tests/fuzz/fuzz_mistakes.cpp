#include "core/records/MistakeHistory.h"
#include "fuzz/FuzzTarget.h"
#include "support/TestInstall.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

bool IsSameMistake(const MistakeRecord &a, const MistakeRecord &b)
{
    return a.Char == b.Char && a.Count == b.Count;
}

void CheckMistakes(const std::vector<MistakeRecord> &records, const QByteArray &bytes)
{
    Require(records.size() * 5 <= static_cast<std::size_t>(bytes.size()), "a mistake takes five bytes");
    for (const MistakeRecord &record : records) {
        Require(!record.Char.isEmpty(), "a mistake has a character");
        Require(record.Char.isValidUtf16(), "a mistake is a whole character");
    }
    const bool fits = std::all_of(records.begin(), records.end(), [](const MistakeRecord &record) {
        return record.Char.toUtf8().size() <= 65535;
    });
    const std::vector<MistakeRecord> read = RecordFile::DecodeMistakes(RecordFile::Encode(records));
    Require(!fits || std::equal(read.begin(), read.end(), records.begin(), records.end(), IsSameMistake),
            "mistakes that are written are read the same");
}

void ReadMistakes(const QByteArray &bytes)
{
    constexpr int english = 0;
    const std::vector<MistakeRecord> records = RecordFile::DecodeMistakes(bytes);
    CheckMistakes(records, bytes);

    static const TestInstall install(u"Ann"_s);
    install.Write(u"Users/Ann/MistakeEN.Dat"_s, bytes);
    IUserRecord store;
    store.SetCurrentUser(u"Ann"_s);
    MistakeHistory history(store, english);
    history.Read();
    Require(history.Amount() == static_cast<int>(std::min<std::size_t>(records.size(), 65535)),
            "every mistake is in the list");
    std::vector<MistakeRecord> frequent = history.Frequent(10);
    Require(std::is_sorted(frequent.begin(), frequent.end(),
                           [](const auto &a, const auto &b) { return a.Count > b.Count; }),
            "the most frequent come first");

    bool chinese = false;
    store.AddMistakeRecord(u"a"_s, 1, chinese);
    Require(store.SaveMistakeRecordFile(english), "mistakes can be saved");
    history.Read();
    const bool hadIt = std::any_of(records.begin(), records.end(),
                                   [](const MistakeRecord &record) { return record.Char == u"A"_s; });
    const auto added = static_cast<int>(records.size()) + (hadIt ? 0 : 1);
    Require(history.Amount() == std::min(added, 65535), "a mistake is added");
    Require(history.Delete({u"A"_s}), "a mistake can be deleted");
    history.Read();
    frequent = history.Frequent(65535);
    Require(std::none_of(frequent.begin(), frequent.end(),
                         [](const MistakeRecord &record) { return record.Char == u"A"_s; }),
            "a deleted mistake is gone");
}

const FuzzTarget mistakesTarget("mistakes", ReadMistakes);

} // namespace
