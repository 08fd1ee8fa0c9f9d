#pragma once

#include "core/records/RecordFile.h"

#include <array>
#include <optional>

/// One user's history: in each record group the best result of each day, and in each language how often
/// characters were mistyped. An object works on lists in memory; only the Save operations write them back,
/// and other objects do not see what is not saved.
///
/// Record groups are 0 English, 1 Pinyin, 2 Wubi, 3 speed tests; languages are 0 English, 1 Chinese. With any
/// other number an operation does nothing. A list without real entries holds one stand-in: a record of
/// 1000-01-01, or a mistake with an empty `Char`.
class IUserRecord
{
public:
    /// The results of GetTrainingLimit.
    struct TrainingLimit
    {
        float low = 0;
        float high = 0;
        float speedOfLow = 0;
        float rateOfLow = 0;
    };

    IUserRecord();

    void SetCurrentUser(const QString &name) { m_currentUser = name; }
    QString CurrentUser() const { return m_currentUser; }

    /// Whether the user is to be offered the placement test after login.
    bool IfBeginTest() const;
    /// False when it could not be stored.
    bool SetIfBeginTest(bool begin);

    /// Reads the group's file into the list, in order of dates, in place of what was there.
    void OpenTrainingRecord(int group);
    /// False when there was a file that could not be read: the list says nothing about it then.
    bool IsTrainingReadable(int group) const;
    void CloseTrainingRecord(int group) { ClearAllTrainingRecord(group); }
    /// Today's result: it becomes today's record when it is the first, or strictly faster than the one there
    /// is. A speed of 0, or a speed or rate that is no finite number, is no result.
    void AddTrainingRecord(float speed, float rate, const QString &text, int group);
    void DeleteTrainningRecord(int group, int index);
    void ClearAllTrainingRecord(int group);
    /// Writes the list to its file, or deletes the file when the list is empty. False, with the file
    /// untouched, when that is impossible: the user's folder is gone (it is not made anew), the disk refuses,
    /// or the file could not be read when it was opened.
    bool SaveTrainingRecordFile(int group);
    /// The number of real entries, at most 65,535.
    quint16 TrainingRecordAmount(int group) const;
    std::optional<TrainingRecord> GetTrainingRecord(int group, int index) const;
    /// The lowest and highest Speed (key 1) or Rate (any other key) of the group, with both values of the
    /// lowest entry. With one entry or none only `low` is set. Leaves the list in order of dates.
    void GetTrainingLimit(int group, int key, TrainingLimit &limit);
    float GetTrainingAverage(int group) const;         ///< mean of Speed, 0 for an empty group
    float GetTrainingVeracityAverage(int group) const; ///< mean of Rate, 0 for an empty group

    /// Reads the language's file into the list, in file order, in place of what was there. A missing file
    /// leaves the list as it is.
    void OpenMistakeRecord(int language);
    bool IsMistakeReadable(int language) const; ///< as IsTrainingReadable
    /// Adds to a character's count, which stays at 32,767 when it gets there. Only one printable character is
    /// taken, and none of the usual Chinese punctuation; a character of ASCII clears `chinese`, counts in
    /// upper case and goes into the English list, another one goes into the Chinese list if `chinese` is set.
    void AddMistakeRecord(const QString &character, qint16 count, bool &chinese);
    void DeleteMistakeRecord(int language, const QString &character);
    void ClearAllMistakeRecord(int language);
    /// Writes the list, most frequent first, under the same rules as SaveTrainingRecordFile.
    bool SaveMistakeRecordFile(int language);
    quint16 MistakeENRecordAmount() const; ///< at most 65,535
    quint16 MistakeCNRecordAmount() const; ///< at most 65,535
    /// The entry at `index`, most frequent first, when the index is below `amount`.
    std::optional<MistakeRecord> GetMistakeENRecord(int index, int amount);
    std::optional<MistakeRecord> GetMistakeCNRecord(int index, int amount);

private:
    enum class SortKey { Date, Speed, Rate };

    struct TrainingList
    {
        std::vector<TrainingRecord> records;
        bool unreadable = false; ///< there is a file, and nothing is known of what it holds
    };
    struct MistakeList
    {
        std::vector<MistakeRecord> records;
        bool unreadable = false;
        bool sorted = false;
    };

    static bool IsEmpty(const TrainingList &list);
    static bool IsEmpty(const MistakeList &list);
    static void SortRecordList(TrainingList &list, SortKey key);
    static void SortRecordList(MistakeList &list);
    static quint16 Amount(const MistakeList &list);
    static std::optional<MistakeRecord> MistakeAt(MistakeList &list, int index, int amount);

    QString UserFile(const QString &name) const;
    bool SaveFile(const QString &name, const QByteArray &bytes) const;
    TrainingList *Training(int group);
    const TrainingList *Training(int group) const;
    MistakeList *Mistakes(int language);
    const MistakeList *Mistakes(int language) const;

    QString m_currentUser;
    std::array<TrainingList, 4> m_training;
    std::array<MistakeList, 2> m_mistakes;
};
