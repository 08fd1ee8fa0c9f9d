#include "WindowBenchmarks.h"
#include "core/records/RecordFile.h"
#include "support/Fakes.h"
#include "support/SkinnedInstall.h"
#include "ui/records/FrmUr_Manage.h"

#include <QAbstractButton>
#include <QApplication>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A user with records of 10,000 days in each group, 94 mistyped keys and 5,000 mistyped characters.
void WriteHistory(const SkinnedInstall &install)
{
    const std::array<QString, 4> files{u"RecordEN.Dat"_s, u"RecordPY.Dat"_s, u"RecordWB.Dat"_s,
                                       u"RecordEX.Dat"_s};
    for (std::size_t group = 0; group < files.size(); ++group) {
        std::vector<TrainingRecord> records;
        for (int day = 0; day < 10'000; ++day)
            records.push_back({QDate(1999, 1, 1).addDays(day), float(day % 97) + 0.5F, 95,
                               u"Short stories \\ The lighthouse Text Training "_s, qint16(group)});
        install.Write(u"Users/Ann/"_s + files[group], RecordFile::Encode(records));
    }
    std::vector<MistakeRecord> keys;
    for (char16_t key = u'!'; key < 127; ++key)
        keys.push_back({QString(QChar(key)), qint16(key)});
    install.Write(u"Users/Ann/MistakeEN.Dat"_s, RecordFile::Encode(keys));
    std::vector<MistakeRecord> characters;
    for (char16_t i = 0; i < 5'000; ++i)
        characters.push_back({QString(QChar(char16_t(0x4e00 + i))), qint16(i % 300)});
    install.Write(u"Users/Ann/MistakeCN.Dat"_s, RecordFile::Encode(characters));
}

QAbstractButton *Tab(const QWidget &window, const char *name)
{
    return window.findChild<QAbstractButton *>(QLatin1StringView(name));
}

/// From the choice of a page until it is painted.
void BM_ShowPage(benchmark::State &state, const char *tab)
{
    const FakeServices services;
    const SkinnedInstall install(u"Ann"_s);
    WriteHistory(install);
    FrmUr_Manage window(nullptr);
    window.show();
    QCoreApplication::processEvents();
    const char *const other = qstrcmp(tab, "XBtn_Zonghe") == 0 ? "XBtn_Jianwei" : "XBtn_Zonghe";
    for (auto _ : state) {
        state.PauseTiming();
        Tab(window, other)->click();
        QCoreApplication::processEvents();
        state.ResumeTiming();
        Tab(window, tab)->click();
        QCoreApplication::processEvents();
    }
}
BENCHMARK_CAPTURE(BM_ShowPage, overview, "XBtn_Zonghe")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_ShowPage, keys, "XBtn_Jianwei")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_ShowPage, characters, "XBtn_Hanzi")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_ShowPage, english, "XBtn_English")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_ShowPage, speed_tests, "XBtn_Exam")->Unit(benchmark::kMillisecond);

void BM_OpenWindow(benchmark::State &state)
{
    const FakeServices services;
    const SkinnedInstall install(u"Ann"_s);
    WriteHistory(install);
    for (auto _ : state) {
        FrmUr_Manage window(nullptr);
        window.show();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(BM_OpenWindow)->Unit(benchmark::kMillisecond);

/// Page down in the list: the chart stays as it is.
void BM_PageDown(benchmark::State &state)
{
    const FakeServices services;
    const SkinnedInstall install(u"Ann"_s);
    WriteHistory(install);
    FrmUr_Manage window(nullptr);
    window.show();
    Tab(window, "XBtn_English")->click();
    for (auto _ : state) {
        Tab(window, "XBtn_PageDown_English")->click();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(BM_PageDown)->Unit(benchmark::kMillisecond)->Iterations(1000);

} // namespace

int main(int argc, char **argv)
{
    return RunWindowBenchmarks(argc, argv);
}
