#include "core/records/IUserRecord.h"

#include "core/records/ExchangeOrder.h"
#include "core/shell/SettingFile.h"
#include "core/shell/UserSettings.h"
#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/Services.h"

#include <QFile>
#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

const TrainingRecord &NoTraining()
{
    static const TrainingRecord standIn{QDate(1000, 1, 1), 0, 0, QString(), 0};
    return standIn;
}

QString TrainingFileName(int group)
{
    static const std::array<QString, 4> names{u"RecordEN.Dat"_s, u"RecordPY.Dat"_s, u"RecordWB.Dat"_s,
                                              u"RecordEX.Dat"_s};
    return names[static_cast<std::size_t>(group)];
}

QString MistakeFileName(int language)
{
    return language == 0 ? u"MistakeEN.Dat"_s : u"MistakeCN.Dat"_s;
}

template <typename List>
auto EntryAt(List &lists, int index) -> decltype(lists.data())
{
    const bool known = index >= 0 && static_cast<std::size_t>(index) < lists.size();
    return known ? &lists[static_cast<std::size_t>(index)] : nullptr;
}

quint16 Saturated(std::size_t count)
{
    return static_cast<quint16>(std::min<std::size_t>(count, std::numeric_limits<quint16>::max()));
}

float Mean(const std::vector<TrainingRecord> &records, float TrainingRecord::*field)
{
    float sum = 0;
    for (const TrainingRecord &record : records)
        sum += record.*field;
    return sum / static_cast<float>(records.size());
}

/// The code of the only character of `text`, or nothing when it holds none, several or a broken one.
std::optional<char32_t> OnlyCharacter(const QString &text)
{
    if (!text.isValidUtf16() || text.isEmpty() || text.size() > 2)
        return std::nullopt;
    const std::u32string characters = text.toStdU32String();
    return characters.size() == 1 ? std::optional(characters[0]) : std::nullopt;
}

bool IsAsciiChar(char32_t character)
{
    return character >= 32 && character < 127;
}

bool IsIgnoredPunctuation(const QString &character)
{
    static const QString ignored = u" ，。！·、×……（）｛｝〔〕：；“”‘’？"_s;
    return ignored.contains(character);
}

} // namespace

IUserRecord::IUserRecord()
{
    for (TrainingList &list : m_training)
        list.records = {NoTraining()};
    for (MistakeList &list : m_mistakes)
        list.records = {MistakeRecord()};
}

QString IUserRecord::UserFile(const QString &name) const
{
    return Public_Function::UserDir(m_currentUser) + name;
}

bool IUserRecord::SaveFile(const QString &name, const QByteArray &bytes) const
{
    if (m_currentUser.isEmpty())
        return false;
    const QString path = UserFile(name);
    if (bytes.isEmpty())
        return QFile::remove(Public_Function::NativePath(path)) || Public_Function::IsMissing(path);
    return Public_Function::ReplaceFile(path, UserFile(u"temp"_s), bytes);
}

bool IUserRecord::IfBeginTest() const
{
    return SettingFile(UserFile(u"Setting.ini"_s)).Integer(u"Main"_s, u"BeginTest"_s, 1) == 1;
}

bool IUserRecord::SetIfBeginTest(bool begin)
{
    if (m_currentUser.isEmpty())
        return false;
    SettingFile settings(UserFile(u"Setting.ini"_s));
    settings.Set(u"Main"_s, u"BeginTest"_s, begin ? 1 : 0);
    return settings.Save();
}

IUserRecord::TrainingList *IUserRecord::Training(int group)
{
    return EntryAt(m_training, group);
}

const IUserRecord::TrainingList *IUserRecord::Training(int group) const
{
    return EntryAt(m_training, group);
}

bool IUserRecord::IsEmpty(const TrainingList &list)
{
    return list.records.size() == 1 && list.records[0].Date == NoTraining().Date;
}

void IUserRecord::SortRecordList(TrainingList &list, SortKey key)
{
    ExchangeSort(list.records, [key](const TrainingRecord &record) {
        switch (key) {
        case SortKey::Speed:
            return static_cast<double>(record.Speed);
        case SortKey::Rate:
            return static_cast<double>(record.Rate);
        case SortKey::Date:
            break;
        }
        return static_cast<double>(record.Date.toJulianDay());
    });
}

void IUserRecord::OpenTrainingRecord(int group)
{
    TrainingList *const list = Training(group);
    if (!list)
        return;
    ClearAllTrainingRecord(group);
    const QString path = UserFile(TrainingFileName(group));
    const std::optional<QByteArray> bytes = Public_Function::ReadFile(path);
    list->unreadable = !bytes && !Public_Function::IsMissing(path);
    std::vector<TrainingRecord> records = RecordFile::DecodeTraining(bytes.value_or(QByteArray()));
    if (records.empty())
        return;
    list->records = std::move(records);
    SortRecordList(*list, SortKey::Date);
}

bool IUserRecord::IsTrainingReadable(int group) const
{
    const TrainingList *const list = Training(group);
    return list && !list->unreadable;
}

void IUserRecord::AddTrainingRecord(float speed, float rate, const QString &text, int group)
{
    TrainingList *const list = Training(group);
    if (!list || speed == 0 || !std::isfinite(speed) || !std::isfinite(rate))
        return;
    const TrainingRecord record{PlatformServices().clock->Today(), speed, rate, text,
                                static_cast<qint16>(group)};
    if (IsEmpty(*list)) {
        list->records[0] = record;
        return;
    }
    const auto today = std::find_if(list->records.begin(), list->records.end(),
                                    [&](const TrainingRecord &entry) { return entry.Date == record.Date; });
    if (today == list->records.end())
        list->records.push_back(record);
    else if (speed > today->Speed)
        *today = record;
}

void IUserRecord::DeleteTrainningRecord(int group, int index)
{
    TrainingList *const list = Training(group);
    if (!list || index < 0 || static_cast<std::size_t>(index) >= list->records.size())
        return;
    list->records.erase(list->records.begin() + index);
    if (list->records.empty())
        list->records = {NoTraining()};
}

void IUserRecord::ClearAllTrainingRecord(int group)
{
    if (TrainingList *const list = Training(group))
        *list = {{NoTraining()}, false};
}

bool IUserRecord::SaveTrainingRecordFile(int group)
{
    const TrainingList *const list = Training(group);
    if (!list || list->unreadable)
        return false;
    return SaveFile(TrainingFileName(group),
                    IsEmpty(*list) ? QByteArray() : RecordFile::Encode(list->records));
}

quint16 IUserRecord::TrainingRecordAmount(int group) const
{
    const TrainingList *const list = Training(group);
    return !list || IsEmpty(*list) ? quint16(0) : Saturated(list->records.size());
}

std::optional<TrainingRecord> IUserRecord::GetTrainingRecord(int group, int index) const
{
    const TrainingList *const list = Training(group);
    if (!list || index < 0 || static_cast<std::size_t>(index) >= list->records.size())
        return std::nullopt;
    return list->records[static_cast<std::size_t>(index)];
}

void IUserRecord::GetTrainingLimit(int group, int key, TrainingLimit &limit)
{
    TrainingList *const list = Training(group);
    if (!list)
        return;
    const bool bySpeed = key == 1;
    const auto field = bySpeed ? &TrainingRecord::Speed : &TrainingRecord::Rate;
    if (list->records.size() == 1) {
        limit.low = list->records[0].*field;
        return;
    }
    SortRecordList(*list, bySpeed ? SortKey::Speed : SortKey::Rate);
    const TrainingRecord &lowest = list->records.front();
    limit = {lowest.*field, list->records.back().*field, lowest.Speed, lowest.Rate};
    SortRecordList(*list, SortKey::Date);
}

float IUserRecord::GetTrainingAverage(int group) const
{
    const TrainingList *const list = Training(group);
    return list ? Mean(list->records, &TrainingRecord::Speed) : 0.0F;
}

float IUserRecord::GetTrainingVeracityAverage(int group) const
{
    const TrainingList *const list = Training(group);
    return list ? Mean(list->records, &TrainingRecord::Rate) : 0.0F;
}

IUserRecord::MistakeList *IUserRecord::Mistakes(int language)
{
    return EntryAt(m_mistakes, language);
}

const IUserRecord::MistakeList *IUserRecord::Mistakes(int language) const
{
    return EntryAt(m_mistakes, language);
}

bool IUserRecord::IsMistakeReadable(int language) const
{
    const MistakeList *const list = Mistakes(language);
    return list && !list->unreadable;
}

bool IUserRecord::IsEmpty(const MistakeList &list)
{
    return list.records.size() == 1 && list.records[0].Char.isEmpty();
}

void IUserRecord::SortRecordList(MistakeList &list)
{
    if (!list.sorted)
        ExchangeSort(list.records, [](const MistakeRecord &record) { return -record.Count; });
    list.sorted = true;
}

quint16 IUserRecord::Amount(const MistakeList &list)
{
    return IsEmpty(list) ? quint16(0) : Saturated(list.records.size());
}

std::optional<MistakeRecord> IUserRecord::MistakeAt(MistakeList &list, int index, int amount)
{
    SortRecordList(list);
    if (index < 0 || index >= amount || static_cast<std::size_t>(index) >= list.records.size())
        return std::nullopt;
    return list.records[static_cast<std::size_t>(index)];
}

void IUserRecord::OpenMistakeRecord(int language)
{
    MistakeList *const list = Mistakes(language);
    if (!list)
        return;
    const QString path = UserFile(MistakeFileName(language));
    const std::optional<QByteArray> bytes = Public_Function::ReadFile(path);
    list->unreadable = !bytes && !Public_Function::IsMissing(path);
    if (!bytes)
        return;
    ClearAllMistakeRecord(language);
    if (std::vector<MistakeRecord> records = RecordFile::DecodeMistakes(*bytes); !records.empty())
        list->records = std::move(records);
}

void IUserRecord::AddMistakeRecord(const QString &character, qint16 count, bool &chinese)
{
    const std::optional<char32_t> code = OnlyCharacter(character);
    if (!code || *code < 32 || *code == 127 || IsIgnoredPunctuation(character))
        return;
    if (IsAsciiChar(*code))
        chinese = false;
    else if (!chinese)
        return;
    const QString key = chinese ? character : character.toUpper();
    MistakeList &list = m_mistakes[chinese ? 1 : 0];
    list.sorted = false;
    if (IsEmpty(list)) {
        list.records[0] = {key, count};
        return;
    }
    const auto entry = std::find_if(list.records.begin(), list.records.end(),
                                    [&](const MistakeRecord &record) { return record.Char == key; });
    if (entry == list.records.end())
        list.records.push_back({key, count});
    else
        entry->Count =
            static_cast<qint16>(std::clamp(entry->Count + count, int(std::numeric_limits<qint16>::min()),
                                           int(std::numeric_limits<qint16>::max())));
}

void IUserRecord::DeleteMistakeRecord(int language, const QString &character)
{
    MistakeList *const list = Mistakes(language);
    if (!list)
        return;
    std::erase_if(list->records, [&](const MistakeRecord &record) { return record.Char == character; });
    if (list->records.empty())
        list->records = {MistakeRecord()};
}

void IUserRecord::ClearAllMistakeRecord(int language)
{
    if (MistakeList *const list = Mistakes(language))
        *list = {{MistakeRecord()}, false, false};
}

bool IUserRecord::SaveMistakeRecordFile(int language)
{
    MistakeList *const list = Mistakes(language);
    if (!list || list->unreadable)
        return false;
    SortRecordList(*list);
    return SaveFile(MistakeFileName(language),
                    IsEmpty(*list) ? QByteArray() : RecordFile::Encode(list->records));
}

quint16 IUserRecord::MistakeENRecordAmount() const
{
    return Amount(m_mistakes[0]);
}

quint16 IUserRecord::MistakeCNRecordAmount() const
{
    return Amount(m_mistakes[1]);
}

std::optional<MistakeRecord> IUserRecord::GetMistakeENRecord(int index, int amount)
{
    return MistakeAt(m_mistakes[0], index, amount);
}

std::optional<MistakeRecord> IUserRecord::GetMistakeCNRecord(int index, int amount)
{
    return MistakeAt(m_mistakes[1], index, amount);
}
