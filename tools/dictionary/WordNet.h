#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <array>
#include <optional>

/// The parts of speech that WordNet has, in the order that decides when it uses a word equally often in two.
enum class PartOfSpeech { Noun, Verb, Adjective, Adverb };

/// The text files of WordNet 3.0, held in memory.
class WordNet
{
public:
    /// Reads `index.*`, `data.*` and `cntlist.rev` of a folder; nothing when one is missing.
    static std::optional<WordNet> Read(const QString &folder);

    /// The part of speech in which WordNet's tagged texts use the word most; nothing when it has no such
    /// word.
    std::optional<PartOfSpeech> UsualPart(const QString &word) const;

    /// The explanation of a sense (from 1) without its examples; nothing when there is no such sense. A long
    /// one is cut after a part that can stand for itself.
    std::optional<QString> Explanation(const QString &word, PartOfSpeech part, int sense) const;

    /// The licence notice at the head of the files.
    QByteArray Notice() const;

private:
    static constexpr int partCount = 4;

    struct Part
    {
        QByteArray data;
        QHash<QByteArray, QByteArray> lines; // of the index, by word
        QHash<QByteArray, int> uses;         // in the tagged texts, by word
    };
    std::array<Part, partCount> m_parts;
};
