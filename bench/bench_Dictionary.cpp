#include "core/drills/clsEn_IDict.h"
#include "support/DictionaryBytes.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int wordCount = 1'000'000;

/// A dictionary of a million words on the disk, a thousand of them with an explanation.
class LargeDictionary
{
public:
    LargeDictionary()
    {
        QByteArray list;
        for (int i = 0; i < wordCount; ++i)
            list += ListRecord(i, "word" + QByteArray::number(i), qint16(i % 9));
        QFile file(m_folder.filePath(u"x.ID"_s));
        if (!file.open(QIODevice::WriteOnly) || file.write(list) != list.size())
            qFatal("cannot write the word list");
        std::vector<std::pair<int, QByteArray>> entries;
        for (int i = 0; i < 1000; ++i)
            entries.emplace_back(i, "& [wɝd]\n% n. \n# one of very many words");
        WriteEntryFile(EntryFile(), entries);
    }

    bool Load(clsEn_IDict &dictionary) const
    {
        return dictionary.InitDictionary(m_folder.path() + u'/', u"x"_s);
    }

    QString EntryFile() const { return m_folder.filePath(u"x.Dat"_s); }

private:
    QTemporaryDir m_folder;
};

const LargeDictionary &Large()
{
    static const LargeDictionary dictionary;
    return dictionary;
}

void LoadMillionWords(benchmark::State &state)
{
    Large();
    for ([[maybe_unused]] auto _ : state) {
        clsEn_IDict dictionary;
        if (!Large().Load(dictionary) || dictionary.GetWordAmount() != wordCount)
            state.SkipWithError("the words were not read");
    }
}
BENCHMARK(LoadMillionWords)->Unit(benchmark::kMillisecond);

/// Opens the entry file, which happens at the first text.
void FirstExplanation(benchmark::State &state)
{
    const QString path = Large().EntryFile();
    for ([[maybe_unused]] auto _ : state) {
        DictEntryReader reader;
        reader.OpenEntryFile(path);
        if (reader.GetEntryText(500).isEmpty())
            state.SkipWithError("there is no explanation");
    }
}
BENCHMARK(FirstExplanation)->Unit(benchmark::kMicrosecond);

/// What a window shows for a word.
void WordWithExplanation(benchmark::State &state)
{
    clsEn_IDict dictionary;
    Large().Load(dictionary);
    qint32 position = 0;
    for ([[maybe_unused]] auto _ : state) {
        position = (position + 7) % 1000;
        benchmark::DoNotOptimize(dictionary.GetPhonetic_Symbol(position));
        benchmark::DoNotOptimize(dictionary.GetExplanation(position));
    }
}
BENCHMARK(WordWithExplanation)->Unit(benchmark::kMicrosecond);

void GetWord(benchmark::State &state)
{
    clsEn_IDict dictionary;
    Large().Load(dictionary);
    qint32 position = 0;
    for ([[maybe_unused]] auto _ : state) {
        position = (position + 7919) % wordCount;
        benchmark::DoNotOptimize(dictionary.GetWord(position));
    }
}
BENCHMARK(GetWord);

} // namespace

BENCHMARK_MAIN();
