#pragma once

#include "core/records/IUserRecord.h"

/// The characters that a user mistyped in one language (0 English, 1 Chinese) as their page shows them, the
/// most frequent first. It reads and writes through the record store of the user, which must outlive it.
class MistakeHistory
{
public:
    MistakeHistory(IUserRecord &store, int language);

    void Read();
    /// False when there is a file that cannot be read. Nothing is ever deleted then.
    bool IsReadable() const { return m_store.IsMistakeReadable(m_language); }

    int Amount() const;
    /// The most frequent ones, `most` at the most.
    std::vector<MistakeRecord> Frequent(int most);

    /// Deletes these characters from the file. False, with the file untouched, when that is impossible.
    bool Delete(const QStringList &characters);

private:
    IUserRecord &m_store;
    int m_language;
};
