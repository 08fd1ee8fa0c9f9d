#include "core/engine/KTest.h"
#include "core/records/RecordFile.h"
#include "core/records/TopList.h"
#include "support/TestInstall.h"

#include <QStringEncoder>
#include <benchmark/benchmark.h>
#include <random>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype tenMegabytes = 10'000'000;

/// A text to be typed, in an install folder of its own.
class LoadedTest
{
public:
    explicit LoadedTest(const QByteArray &bytes)
    {
        m_install.Write(u"Data/long.txt"_s, bytes);
        Shared().TestFile[0] = Shared().InstallDir + u"Data\\long.txt"_s;
        test.m_nMaxCols = 80;
        if (!test.LoadLesson())
            qFatal("the text was not loaded");
    }

private:
    TestInstall m_install;

public:
    KTest test;
};

/// Pieces of a text up to ten megabytes.
QByteArray Repeated(const QByteArray &piece)
{
    return piece.repeated(tenMegabytes / piece.size());
}

void Load(benchmark::State &state, const QByteArray &bytes)
{
    LoadedTest loaded(bytes);
    for ([[maybe_unused]] auto _ : state) {
        if (!loaded.test.LoadLesson())
            state.SkipWithError("the text was not loaded");
    }
}

const QByteArray english("The early train was full, so they waited for the next one.\r\n");
const QString chinese = u"早班车已经满了，他们只好等下一班。\r\n"_s;

BENCHMARK_CAPTURE(Load, English, Repeated(english))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Load, ChineseUtf8, Repeated(chinese.toUtf8()))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Load, ChineseUtf16,
                  "\xFF\xFE" + Repeated(QByteArray(QStringEncoder(QStringConverter::Utf16LE)(chinese))))
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Load, ChineseGb18030, Repeated(QByteArray(QStringEncoder("GB18030")(chinese))))
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Load, Unbroken, QByteArray(tenMegabytes, 'a'))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Load, ALetterALine, Repeated("a\n"))->Unit(benchmark::kMillisecond);

/// One judged key with the figures that are shown, in a line of so many letters.
void JudgeKey(benchmark::State &state)
{
    LoadedTest loaded(QByteArray(state.range(0), 'a'));
    KTest &test = loaded.test;
    while (test.IsLineDone() && test.SetNextLine()) {
    }
    test.StartType();
    const QString key = u"a"_s;
    int typed = 0;
    for ([[maybe_unused]] auto _ : state) {
        if (test.IsLineDone()) {
            state.PauseTiming();
            for (; typed > 0; --typed)
                test.BackSpace();
            state.ResumeTiming();
        }
        test.CheckString(key);
        ++typed;
        QString shown;
        int line = -1;
        benchmark::DoNotOptimize(test.IsRightKey(shown, test.m_nCurCol - 1, line));
        benchmark::DoNotOptimize(test.GetRightRate() + test.GetProgress() + test.GetAveSpeed());
    }
}
BENCHMARK(JudgeKey)->Arg(70)->Arg(1'000'000)->Arg(tenMegabytes);

void MistypedCharacters(benchmark::State &state)
{
    std::mt19937 random(3);
    QString text;
    for (int i = 0; i < 100'000; ++i)
        text += QChar(static_cast<char16_t>(0x4E00 + random() % 5000));
    LoadedTest loaded(text.toUtf8());
    do {
        while (!loaded.test.IsLineDone())
            loaded.test.CheckString(u"x"_s);
    } while (loaded.test.SetNextLine());
    for ([[maybe_unused]] auto _ : state) {
        if (loaded.test.GetWrong().nWrong.size() != 5000)
            state.SkipWithError("characters are missing");
    }
}
BENCHMARK(MistypedCharacters)->Unit(benchmark::kMillisecond);

void RankEverybody(benchmark::State &state)
{
    constexpr std::size_t users = 500;
    constexpr std::size_t days = 2000;
    const TestInstall install;
    std::mt19937 random(5);
    QByteArray names;
    for (std::size_t user = 0; user < users; ++user) {
        const QByteArray name = "user" + QByteArray::number(static_cast<qulonglong>(user));
        names += name + ";\r\n";
        std::vector<TrainingRecord> records;
        for (std::size_t day = 0; day < days; ++day)
            records.push_back({QDate(2019, 1, 1).addDays(static_cast<qint64>(day)),
                               static_cast<float>(20 + random() % 100), 95, u"Screen Text"_s, 3});
        install.Write(u"Users/"_s + QString::fromLatin1(name) + u"/RecordEX.Dat"_s,
                      RecordFile::Encode(records));
    }
    install.Write(u"user.ini"_s, names);
    for ([[maybe_unused]] auto _ : state) {
        if (CollectTopList().size() != users * days)
            state.SkipWithError("records are missing");
    }
}
BENCHMARK(RankEverybody)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
