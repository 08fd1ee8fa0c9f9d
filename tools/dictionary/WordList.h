#pragma once

#include "WordNet.h"

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

/// A word of a dictionary, with everything that its files say about it.
struct DictionaryWord
{
    QString word;
    qint16 difficulty = 1;
    QString partLabel;   ///< "n.", "adj." …
    QString phonetic;    ///< IPA without slashes; may be empty
    QString explanation; ///< never empty
};

struct WordListResult
{
    std::vector<DictionaryWord> words;
    QStringList faults; ///< one for each bad line: "12: abate: has no phonetic"
};

/// Reads a word list, whose columns are described in docs/dictionaries.md. What a line leaves open comes from
/// `wordNet`, when there is one.
WordListResult ReadWordList(const QByteArray &text, const std::optional<WordNet> &wordNet,
                            bool needsPhonetic);
