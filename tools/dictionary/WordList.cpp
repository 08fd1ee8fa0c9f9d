#include "WordList.h"

#include "Phonetic.h"

#include <QHash>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype longestOwnExplanation = 110;

struct PartName
{
    QString name;
    QString label;
    std::optional<PartOfSpeech> part; // none: WordNet does not have it
};

const std::vector<PartName> &PartNames()
{
    static const std::vector<PartName> names{{u"noun"_s, u"n."_s, PartOfSpeech::Noun},
                                             {u"verb"_s, u"v."_s, PartOfSpeech::Verb},
                                             {u"adj"_s, u"adj."_s, PartOfSpeech::Adjective},
                                             {u"adv"_s, u"adv."_s, PartOfSpeech::Adverb},
                                             {u"prep"_s, u"prep."_s, std::nullopt},
                                             {u"conj"_s, u"conj."_s, std::nullopt},
                                             {u"pron"_s, u"pron."_s, std::nullopt},
                                             {u"det"_s, u"det."_s, std::nullopt},
                                             {u"num"_s, u"num."_s, std::nullopt},
                                             {u"int"_s, u"int."_s, std::nullopt}};
    return names;
}

QString WordFault(const QString &word)
{
    const auto isTypable = [](QChar c) { return c > u' ' && c <= u'~'; };
    if (word.isEmpty())
        return u"there is no word"_s;
    if (!std::all_of(word.begin(), word.end(), isTypable))
        return u"cannot be typed: only ASCII without spaces can"_s;
    return word.startsWith(u'{') ? u"a word that starts with { is never shown"_s : QString();
}

/// The explanation that column 6 or WordNet gives; `fault` says why there is none.
QString Explain(const QString &own, const QString &word, const PartName &part, const QString &senses,
                const std::optional<WordNet> &wordNet, QString &fault)
{
    if (!own.isEmpty()) {
        if (own.size() > longestOwnExplanation)
            fault = u"its explanation is longer than %1 characters"_s.arg(longestOwnExplanation);
        return own;
    }
    QStringList explanations;
    const QStringList numbers = (senses.isEmpty() ? u"1"_s : senses).split(u',');
    for (const QString &number : numbers) {
        const auto found = wordNet && part.part ? wordNet->Explanation(word, *part.part, number.toInt())
                                                : std::optional<QString>();
        if (!found || found->isEmpty())
            fault = senses.isEmpty() ? u"has no explanation"_s
                                     : u"WordNet has no sense \"%1\" of it as %2"_s.arg(number, part.name);
        else if (!explanations.contains(*found))
            explanations += *found;
    }
    return explanations.join(u"; "_s);
}

/// A line's word, or what is wrong with it.
struct LineResult
{
    DictionaryWord word;
    QString fault;
};

LineResult ReadLine(const QStringList &columns, const std::optional<WordNet> &wordNet, bool needsPhonetic)
{
    LineResult result;
    DictionaryWord &word = result.word;
    const auto column = [&columns](qsizetype number) { return columns.value(number - 1); };
    const auto fail = [&result](const QString &fault) {
        result.fault = fault;
        return result;
    };

    word.word = column(1);
    if (const QString fault = WordFault(word.word); !fault.isEmpty())
        return fail(fault);
    if (columns.size() > 6)
        return fail(u"has %1 columns instead of 6"_s.arg(columns.size()));
    for (const QString &text : columns) {
        if (text != text.simplified())
            return fail(u"has a space too many"_s);
    }

    const QString difficulty = column(2);
    if (difficulty.size() != 1 || difficulty.front() < u'1' || difficulty.front() > u'9')
        return fail(u"its difficulty is \"%1\" instead of 1 to 9"_s.arg(difficulty));
    word.difficulty = static_cast<qint16>(difficulty.toShort());

    QString partName = column(3);
    if (partName.isEmpty()) {
        const auto usual = wordNet ? wordNet->UsualPart(word.word) : std::optional<PartOfSpeech>();
        if (!usual)
            return fail(u"has no part of speech, and WordNet knows none"_s);
        partName = PartNames()[static_cast<std::size_t>(*usual)].name;
    }
    const auto part = std::find_if(PartNames().begin(), PartNames().end(),
                                   [&](const PartName &known) { return known.name == partName; });
    if (part == PartNames().end())
        return fail(u"there is no part of speech \"%1\""_s.arg(partName));
    word.partLabel = part->label;

    word.phonetic = column(5);
    if (!word.phonetic.isEmpty())
        result.fault = PhoneticFault(word.phonetic);
    else if (needsPhonetic)
        result.fault = u"has no phonetic"_s;
    if (!result.fault.isEmpty())
        return result;

    word.explanation = Explain(column(6), word.word, *part, column(4), wordNet, result.fault);
    return result;
}

} // namespace

WordListResult ReadWordList(const QByteArray &text, const std::optional<WordNet> &wordNet, bool needsPhonetic)
{
    WordListResult result;
    QHash<QString, int> firstLines;
    int number = 0;
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray &raw : lines) {
        ++number;
        QString line = QString::fromUtf8(raw);
        if (line.endsWith(u'\r'))
            line.chop(1);
        if (line.trimmed().isEmpty() || line.startsWith(u'#'))
            continue;
        auto [word, fault] = raw.isValidUtf8() ? ReadLine(line.split(u'\t'), wordNet, needsPhonetic)
                                               : LineResult{{}, u"is not UTF-8"_s};
        if (const int first = firstLines.value(word.word); first != 0 && fault.isEmpty())
            fault = u"stands in line %1 already"_s.arg(first);
        if (!fault.isEmpty())
            result.faults += u"%1: %2: %3"_s.arg(number).arg(line.section(u'\t', 0, 0), fault);
        else
            result.words.push_back(word);
        firstLines.insert(word.word, number);
    }
    return result;
}
