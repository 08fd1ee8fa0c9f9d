#include "core/records/TrainingHistory.h"

#include "core/engine/Level.h"
#include "core/engine/ModuleName.h"
#include "core/records/NumberText.h"
#include "core/records/OneLine.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

bool IsSame(const TrainingRecord &a, const TrainingRecord &b)
{
    return a.Date == b.Date && a.Speed == b.Speed && a.Rate == b.Rate && a.Text == b.Text;
}

} // namespace

TrainingHistory::TrainingHistory(IUserRecord &store, int group)
    : m_store(store)
    , m_group(group)
{
}

void TrainingHistory::Read()
{
    m_store.OpenTrainingRecord(m_group);
    const int amount = m_store.TrainingRecordAmount(m_group);
    m_records.clear();
    m_records.reserve(static_cast<std::size_t>(amount));
    for (int i = 0; i < amount; ++i)
        m_records.push_back(*m_store.GetTrainingRecord(m_group, i));
}

float TrainingHistory::HighestSpeed() const
{
    float highest = 0;
    for (const TrainingRecord &record : m_records)
        highest = std::max(highest, record.Speed);
    return highest;
}

int TrainingHistory::StoredIndexOf(int index, const QList<int> &taken) const
{
    const auto isIt = [&](int stored) {
        const std::optional<TrainingRecord> record = m_store.GetTrainingRecord(m_group, stored);
        return record && IsSame(*record, At(index)) && !taken.contains(stored);
    };
    if (isIt(index))
        return index;
    for (int stored = 0; stored < m_store.TrainingRecordAmount(m_group); ++stored) {
        if (isIt(stored))
            return stored;
    }
    return -1;
}

bool TrainingHistory::Delete(const QList<int> &indices)
{
    m_store.OpenTrainingRecord(m_group);
    if (!IsReadable())
        return false;
    QList<int> places;
    for (const int index : indices)
        places += StoredIndexOf(index, places);
    // From the last one on, so that those still to come keep their places.
    std::sort(places.begin(), places.end(), std::greater<>());
    for (const int place : std::as_const(places))
        m_store.DeleteTrainningRecord(m_group, place);
    return m_store.SaveTrainingRecordFile(m_group);
}

bool TrainingHistory::Clear()
{
    m_store.OpenTrainingRecord(m_group);
    if (!IsReadable())
        return false;
    m_store.ClearAllTrainingRecord(m_group);
    return m_store.SaveTrainingRecordFile(m_group);
}

QString TrainingRecordText(const TrainingRecord &record)
{
    return u"speed:"_s + ShortestText(record.Speed) + u"  correct rate:"_s + ShortestText(record.Rate) +
           u"% "_s + OneLine(record.Text, 300);
}

QStringList TrainingSummary(IUserRecord &store)
{
    constexpr int english = 0;
    TrainingHistory history(store, english);
    history.Read();
    const float average = store.GetTrainingAverage(english);
    const float rate = store.GetTrainingVeracityAverage(english);
    const int level = Public_Function::GetLevel(InputKind::None, average, rate);
    return {
        u"The Highest Record:"_s + ShortestText(history.HighestSpeed()) + u" words per minute"_s,
        u"The Average Speed:"_s + ShortestText(average) + u" words per minute"_s,
        u"The Average Rate of Correct:"_s + ShortestText(rate) + u'%',
        u"The Practice Module:"_s + Public_Function::GetPracticeModuleName(level),
    };
}
