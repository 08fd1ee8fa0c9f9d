#include "core/records/TopList.h"

#include "core/records/IUserRecord.h"
#include "core/records/NumberText.h"
#include "core/shell/UserList.h"

#include <QSet>
#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Fastest first, equally fast ones as they were. Places are sorted in place of entries, which are large.
std::vector<TopListEntry> Ranked(std::vector<TopListEntry> entries)
{
    std::vector<std::pair<float, std::size_t>> places;
    places.reserve(entries.size());
    for (const TopListEntry &entry : entries)
        places.emplace_back(-entry.speed, places.size());
    std::sort(places.begin(), places.end());
    std::vector<TopListEntry> ranked;
    ranked.reserve(entries.size());
    for (const auto &[speed, place] : places)
        ranked.push_back(std::move(entries[place]));
    return ranked;
}

} // namespace

QString TopListEntry::RecordText() const
{
    return ShortestText(speed) + u"wpm "_s + ShortestText(rate) + u'%';
}

std::vector<TopListEntry> CollectTopList()
{
    constexpr int speedTests = 3;
    std::vector<TopListEntry> entries;
    QSet<QString> texts; // there are few, and each record has its own copy
    const QStringList users = UserList().Names();
    for (const QString &user : users) {
        IUserRecord records;
        records.SetCurrentUser(user);
        records.OpenTrainingRecord(speedTests);
        for (int i = 0; i < records.TrainingRecordAmount(speedTests); ++i) {
            if (const std::optional<TrainingRecord> record = records.GetTrainingRecord(speedTests, i))
                entries.push_back(
                    {user, record->Speed, record->Rate, record->Date, *texts.insert(record->Text)});
        }
    }
    return Ranked(std::move(entries));
}
