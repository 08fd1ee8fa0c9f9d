#pragma once

#include "core/drills/DictEntryReader.h"
#include "platform/BinaryFields.h"

#include <QByteArray>
#include <QString>
#include <vector>

/// A record of a word list, `<name>.ID`, in the order of its fields there.
struct DictWordRecord
{
    qint32 EntryId = 0;  ///< key of the word's text in the entry file
    QByteArrayView Word; ///< as it stands in the file; not yet decoded
    qint16 Difficulty = 0;
    quint16 Reserved = 0;
};

/// A dictionary: the words of `<name>.ID` in file order, and what `<name>.Dat` says about them. Positions
/// count from 0; at any other position a text is empty and a number 0.
class clsEn_IDict
{
public:
    /// Loads `<strPath><strDictName>.ID`; `strPath` ends in a separator. True when it has a word. A list that
    /// is missing or cannot be read changes nothing; one without a word leaves the dictionary empty. A list
    /// that is cut off or damaged counts up to there.
    bool InitDictionary(const QString &strPath, const QString &strDictName);

    qint32 GetWordAmount() const { return static_cast<qint32>(m_starts.size()); }
    QString GetWord(qint32 Index) const;
    /// In the signs of the phonetic font; empty when the word has none.
    QString GetPhonetic_Symbol(qint32 Index);
    /// Part of speech and meaning in one line; empty when there is none.
    QString GetExplanation(qint32 Index);
    qint16 GetWordDifficulty(qint32 Index) const;

private:
    void RemoveMarks();
    DictWordRecord Record(qint32 Index) const;
    QStringList EntryLines(qint32 Index);

    // A million words are cheap this way: the file as it is, and where the words' records start in it.
    QByteArray m_file;
    std::vector<quint32> m_starts;
    BinaryFields::TextDecoder m_decoder;
    DictEntryReader m_reader;
};
