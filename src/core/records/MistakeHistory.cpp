#include "core/records/MistakeHistory.h"

MistakeHistory::MistakeHistory(IUserRecord &store, int language)
    : m_store(store)
    , m_language(language)
{
}

void MistakeHistory::Read()
{
    // Without a file, opening leaves a list as it is.
    m_store.ClearAllMistakeRecord(m_language);
    m_store.OpenMistakeRecord(m_language);
}

int MistakeHistory::Amount() const
{
    return m_language == 0 ? m_store.MistakeENRecordAmount() : m_store.MistakeCNRecordAmount();
}

std::vector<MistakeRecord> MistakeHistory::Frequent(int most)
{
    std::vector<MistakeRecord> records;
    for (int i = 0; i < qMin(most, Amount()); ++i) {
        const std::optional<MistakeRecord> record =
            m_language == 0 ? m_store.GetMistakeENRecord(i, most) : m_store.GetMistakeCNRecord(i, most);
        if (record)
            records.push_back(*record);
    }
    return records;
}

bool MistakeHistory::Delete(const QStringList &characters)
{
    Read();
    if (!IsReadable())
        return false;
    for (const QString &character : characters)
        m_store.DeleteMistakeRecord(m_language, character);
    return m_store.SaveMistakeRecordFile(m_language);
}
