#include "core/records/TopList.h"

#include "core/records/IUserRecord.h"
#include "core/shell/UserList.h"

#include <algorithm>
#include <array>
#include <charconv>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The shortest decimal text that means this float and no other.
QString ShortestText(float number)
{
    std::array<char, 64> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    return QString::fromLatin1(text.data(), end.ptr - text.data());
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
    const QStringList users = UserList().Names();
    for (const QString &user : users) {
        IUserRecord records;
        records.SetCurrentUser(user);
        records.OpenTrainingRecord(speedTests);
        for (int i = 0; i < records.TrainingRecordAmount(speedTests); ++i) {
            if (const std::optional<TrainingRecord> record = records.GetTrainingRecord(speedTests, i))
                entries.push_back({user, record->Speed, record->Rate, record->Date, record->Text});
        }
    }
    std::stable_sort(entries.begin(), entries.end(),
                     [](const TopListEntry &a, const TopListEntry &b) { return a.speed > b.speed; });
    return entries;
}
