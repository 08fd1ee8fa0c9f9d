#include "core/drills/KeyMistakeStore.h"

#include "core/records/IUserRecord.h"
#include "core/shell/Public_Define.h"

void KeyMistakeStore::Store(const KeyMistakes &mistakes)
{
    constexpr int english = 0;
    IUserRecord records;
    records.SetCurrentUser(Shared().CurrentUserName);
    records.OpenMistakeRecord(english);
    for (char16_t character = KeyMistakes::First; character <= KeyMistakes::Last; ++character) {
        const auto count = static_cast<qint16>(mistakes.Count(character) - m_stored.Count(character));
        bool chinese = false;
        if (count >= 1)
            records.AddMistakeRecord(QString(QChar(character)), count, chinese);
    }
    if (records.SaveMistakeRecordFile(english))
        m_stored = mistakes;
}
