#include "core/records/ExchangeOrder.h"
#include "core/records/IUserRecord.h"
#include "core/shell/Public_Define.h"
#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/Services.h"

#include <QDir>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <random>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int tenYears = 3650;

/// A user with a record on each day of ten years up to yesterday.
class TenYears
{
public:
    TenYears()
    {
        Shared().InstallDir = Public_Function::ProductPath(m_folder.path()) + u'\\';
        QDir(m_folder.path()).mkpath(u"Users/Anna"_s);
        std::vector<TrainingRecord> days;
        for (int day = tenYears; day > 0; --day)
            days.push_back({PlatformServices().clock->Today().addDays(-day),
                            static_cast<float>(20 + day % 60), static_cast<float>(80 + day % 20),
                            u"Adage:11.txt Text Training "_s, 0});
        m_stored = RecordFile::Encode(days);
        Restore();
    }

    void Restore() const
    {
        Public_Function::ReplaceFile(Shared().InstallDir + u"Users\\Anna\\RecordEN.Dat"_s,
                                     Shared().InstallDir + u"Users\\Anna\\temp"_s, m_stored);
    }

private:
    QTemporaryDir m_folder;
    QByteArray m_stored;
};

void OpenAddSave(benchmark::State &state)
{
    const TenYears user;
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        user.Restore();
        state.ResumeTiming();
        IUserRecord store;
        store.SetCurrentUser(u"Anna"_s);
        store.OpenTrainingRecord(0);
        store.AddTrainingRecord(50, 95, u"Adage:1.txt Text Training "_s, 0);
        if (!store.SaveTrainingRecordFile(0) || store.TrainingRecordAmount(0) != tenYears + 1)
            state.SkipWithError("the records were not saved");
    }
}
BENCHMARK(OpenAddSave)->Unit(benchmark::kMillisecond);

void OpenAndLimits(benchmark::State &state)
{
    const TenYears user;
    for ([[maybe_unused]] auto _ : state) {
        IUserRecord store;
        store.SetCurrentUser(u"Anna"_s);
        store.OpenTrainingRecord(0);
        IUserRecord::TrainingLimit limit;
        store.GetTrainingLimit(0, 1, limit);
        benchmark::DoNotOptimize(limit);
        benchmark::DoNotOptimize(store.GetTrainingAverage(0));
    }
}
BENCHMARK(OpenAndLimits)->Unit(benchmark::kMillisecond);

void OrderWithManyTies(benchmark::State &state)
{
    std::mt19937 random(1);
    std::vector<double> keys(static_cast<std::size_t>(state.range(0)));
    for (double &key : keys)
        key = static_cast<double>(random() % 50);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(ExchangeOrder(keys));
}
BENCHMARK(OrderWithManyTies)->Arg(tenYears)->Arg(65535)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
