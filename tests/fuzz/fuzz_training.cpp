#include "core/records/TopList.h"
#include "core/records/TrainingHistory.h"
#include "fuzz/FuzzTarget.h"
#include "support/TestInstall.h"

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

bool IsSameRecord(const TrainingRecord &a, const TrainingRecord &b)
{
    return a.Date == b.Date && a.Speed == b.Speed && a.Rate == b.Rate && a.Text == b.Text &&
           a.Group == b.Group;
}

/// A text that was in another encoding; it is cut when it is written.
bool IsCutWhenWritten(const TrainingRecord &record)
{
    return record.Text.toUtf8().size() > 65535;
}

/// The group's records as they are stored.
std::vector<TrainingRecord> Stored(int group)
{
    IUserRecord store;
    store.SetCurrentUser(u"Ann"_s);
    store.OpenTrainingRecord(group);
    std::vector<TrainingRecord> records;
    for (int i = 0; i < store.TrainingRecordAmount(group); ++i)
        records.push_back(*store.GetTrainingRecord(group, i));
    return records;
}

void CheckTraining(const std::vector<TrainingRecord> &records, const QByteArray &bytes)
{
    constexpr std::size_t shortest = 20;
    Require(records.size() * shortest <= static_cast<std::size_t>(bytes.size()), "a record takes 20 bytes");
    for (const TrainingRecord &record : records) {
        Require(record.Date.isValid() && record.Date.year() != 1899, "a record has a date");
        Require(std::isfinite(record.Speed) && std::isfinite(record.Rate), "numbers are finite");
        Require(record.Text.isValidUtf16(), "a text holds whole characters");
        const QString row = TrainingRecordText(record);
        Require(!row.contains(u'\n') && row.size() < 600, "a row is one line");
    }
    std::vector<TrainingRecord> written = records;
    std::erase_if(written, IsCutWhenWritten);
    const std::vector<TrainingRecord> read = RecordFile::DecodeTraining(RecordFile::Encode(written));
    Require(std::equal(read.begin(), read.end(), written.begin(), written.end(), IsSameRecord),
            "records that are written are read the same");
}

void ReadTraining(const QByteArray &bytes)
{
    constexpr int english = 0;
    constexpr int speedTests = 3;
    CheckTraining(RecordFile::DecodeTraining(bytes), bytes);

    static const TestInstall install(u"Ann"_s);
    install.Write(u"user.ini"_s, "Ann;\r\n");
    install.Write(u"Users/Ann/RecordEN.Dat"_s, bytes);
    install.Write(u"Users/Ann/RecordEX.Dat"_s, bytes);
    const std::vector<TrainingRecord> before = Stored(speedTests);
    Require(std::is_sorted(before.begin(), before.end(),
                           [](const auto &a, const auto &b) { return a.Date < b.Date; }),
            "records are in order of dates");
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
    const std::vector<TrainingRecord> after = Stored(speedTests);
    const auto isKept = [&](const TrainingRecord &record) {
        return IsCutWhenWritten(record) || std::any_of(after.begin(), after.end(), [&](const auto &other) {
                   return IsSameRecord(record, other);
               });
    };
    Require(after.size() == before.size() || after.size() == before.size() + 1, "one record is added");
    if (before.size() < 100)
        Require(std::count_if(before.begin(), before.end(), isKept) + 1 >= std::ptrdiff_t(before.size()),
                "the other records are kept");

    TrainingHistory history(store, speedTests);
    history.Read();
    Require(history.Delete({history.Amount() - 1}), "a record can be deleted");
    Require(Stored(speedTests).size() == after.size() - 1, "one record is deleted");
}

const FuzzTarget trainingTarget("training", ReadTraining);

} // namespace
