#include "core/records/MistakeHistory.h"
#include "core/records/TopList.h"
#include "core/records/TrainingHistory.h"
#include "fuzz/FuzzTarget.h"
#include "support/TestInstall.h"

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int english = 0;
constexpr int speedTests = 3;

bool IsSameMistake(const MistakeRecord &a, const MistakeRecord &b)
{
    return a.Char == b.Char && a.Count == b.Count;
}

bool IsSameRecord(const TrainingRecord &a, const TrainingRecord &b)
{
    return a.Date == b.Date && a.Speed == b.Speed && a.Rate == b.Rate && a.Text == b.Text &&
           a.Group == b.Group;
}

/// A text that was in another encoding; it is cut when it is written.
bool IsCutWhenWritten(const QString &text)
{
    return text.toUtf8().size() > 65535;
}

bool IsTheA(const MistakeRecord &record)
{
    return record.Char == u"A"_s;
}

void ReadMistakes(const QByteArray &bytes)
{
    std::vector<MistakeRecord> records = RecordFile::DecodeMistakes(bytes);
    Require(static_cast<qsizetype>(records.size()) * 5 <= bytes.size(), "a mistake takes five bytes");
    for (const MistakeRecord &record : records)
        Require(!record.Char.isEmpty() && record.Char.isValidUtf16(), "a mistake is a whole character");

    static const TestInstall install(u"Ann"_s);
    install.Write(u"Users/Ann/MistakeEN.Dat"_s, bytes);
    IUserRecord store;
    store.SetCurrentUser(u"Ann"_s);
    MistakeHistory history(store, english);
    history.Read();
    const auto most = [](std::size_t amount) {
        return static_cast<int>(std::min<std::size_t>(amount, 65535));
    };
    Require(history.Amount() == most(records.size()), "every mistake is in the list");
    Require(std::ranges::is_sorted(history.Frequent(10), std::ranges::greater(), &MistakeRecord::Count),
            "the most frequent come first");

    bool chinese = false;
    store.AddMistakeRecord(u"a"_s, 1, chinese);
    Require(store.SaveMistakeRecordFile(english), "mistakes can be saved");
    history.Read();
    Require(history.Amount() == most(records.size() + (std::ranges::any_of(records, IsTheA) ? 0 : 1)),
            "a mistake is added");
    Require(history.Delete({u"A"_s}), "a mistake can be deleted");
    history.Read();
    Require(std::ranges::none_of(history.Frequent(65535), IsTheA), "a deleted mistake is gone");

    std::erase_if(records, [](const MistakeRecord &record) { return IsCutWhenWritten(record.Char); });
    Require(
        std::ranges::equal(RecordFile::DecodeMistakes(RecordFile::Encode(records)), records, IsSameMistake),
        "mistakes that are written are read the same");
}

const FuzzTarget mistakesTarget("mistakes", ReadMistakes);

void CheckTraining(std::vector<TrainingRecord> records, const QByteArray &bytes)
{
    Require(static_cast<qsizetype>(records.size()) * 20 <= bytes.size(), "a record takes 20 bytes");
    for (const TrainingRecord &record : records) {
        Require(record.Date.isValid() && record.Date.year() != 1899, "a record has a date");
        Require(std::isfinite(record.Speed) && std::isfinite(record.Rate), "numbers are finite");
        Require(record.Text.isValidUtf16(), "a text holds whole characters");
        const QString row = TrainingRecordText(record);
        Require(!row.contains(u'\n') && row.size() < 600, "a row is one line");
    }
    std::erase_if(records, [](const TrainingRecord &record) { return IsCutWhenWritten(record.Text); });
    Require(
        std::ranges::equal(RecordFile::DecodeTraining(RecordFile::Encode(records)), records, IsSameRecord),
        "records that are written are read the same");
}

/// The records of the speed tests as they are stored.
std::vector<TrainingRecord> StoredTests()
{
    IUserRecord store;
    store.SetCurrentUser(u"Ann"_s);
    store.OpenTrainingRecord(speedTests);
    std::vector<TrainingRecord> records;
    for (int i = 0; i < store.TrainingRecordAmount(speedTests); ++i)
        records.push_back(*store.GetTrainingRecord(speedTests, i));
    return records;
}

void ReadTraining(const QByteArray &bytes)
{
    CheckTraining(RecordFile::DecodeTraining(bytes), bytes);

    static const TestInstall install(u"Ann"_s);
    install.Write(u"user.ini"_s, "Ann;\r\n");
    install.Write(u"Users/Ann/RecordEN.Dat"_s, bytes);
    install.Write(u"Users/Ann/RecordEX.Dat"_s, bytes);
    const std::vector<TrainingRecord> before = StoredTests();
    Require(std::ranges::is_sorted(before, {}, &TrainingRecord::Date), "records are in order of dates");
    Require(CollectTopList().size() == before.size(), "the top list holds every record");

    IUserRecord store;
    store.SetCurrentUser(u"Ann"_s);
    Require(TrainingSummary(store).size() == 4, "the summary has four lines");
    IUserRecord::TrainingLimit limit;
    store.GetTrainingLimit(english, 1, limit);
    Require(store.TrainingRecordAmount(english) == static_cast<int>(before.size()),
            "counting takes no record");

    store.OpenTrainingRecord(speedTests);
    store.AddTrainingRecord(1e30F, 90, u"best"_s, speedTests);
    Require(store.SaveTrainingRecordFile(speedTests), "records can be saved");
    const std::vector<TrainingRecord> after = StoredTests();
    Require(after.size() == before.size() || after.size() == before.size() + 1, "one record is added");
    const auto isLost = [&](const TrainingRecord &record) {
        const auto isSame = [&](const TrainingRecord &other) { return IsSameRecord(record, other); };
        return !IsCutWhenWritten(record.Text) && std::ranges::none_of(after, isSame);
    };
    if (before.size() < 100)
        Require(std::ranges::count_if(before, isLost) <= 1, "the other records are kept");

    TrainingHistory history(store, speedTests);
    history.Read();
    Require(history.Delete({history.Amount() - 1}), "a record can be deleted");
    Require(StoredTests().size() == after.size() - 1, "one record is deleted");
}

const FuzzTarget trainingTarget("training", ReadTraining);

} // namespace
