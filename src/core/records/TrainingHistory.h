#pragma once

#include "core/records/IUserRecord.h"

#include <QList>

/// One record group of a user as its page shows it: in order of dates, five records to a page. It reads and
/// writes through the record store of the user, which must outlive it.
class TrainingHistory
{
public:
    static constexpr int RowsPerPage = 5;

    TrainingHistory(IUserRecord &store, int group);

    void Read();
    /// False when there is a file that cannot be read. Nothing is ever deleted then.
    bool IsReadable() const { return m_store.IsTrainingReadable(m_group); }

    int Amount() const { return static_cast<int>(m_records.size()); }
    int PageCount() const { return (Amount() + RowsPerPage - 1) / RowsPerPage; }
    const TrainingRecord &At(int index) const { return m_records[static_cast<std::size_t>(index)]; }
    float HighestSpeed() const;

    /// Deletes these records, and no other, from the file, whatever else was written to it since it was read.
    /// False, with the file untouched, when that is impossible.
    bool Delete(const QList<int> &indices);
    bool Clear();

private:
    /// Where the record stands in the file now, -1 nowhere; equal ones stand in places of their own.
    int StoredIndexOf(int index, const QList<int> &taken) const;

    IUserRecord &m_store;
    int m_group;
    std::vector<TrainingRecord> m_records;
};

/// What a row of the list says about a record: "speed:45.5  correct rate:98% Short stories". One line; a text
/// longer than any row is cut.
QString TrainingRecordText(const TrainingRecord &record);

/// The four lines about the user's English course: highest and average speed, average rate, and the module
/// to practise next. Opens the group.
QStringList TrainingSummary(IUserRecord &store);
