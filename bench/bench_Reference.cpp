// A fixed piece of work that no change of the program touches: other figures are divided by it, so that they
// can be compared between machines and busy hours.

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <random>
#include <vector>

namespace {

/// Half of it computes and half of it paints.
void Reference(benchmark::State &state)
{
    std::mt19937 random(1);
    std::vector<unsigned> numbers(20'000);
    std::generate(numbers.begin(), numbers.end(), random);
    QImage tile(256, 256, QImage::Format_ARGB32_Premultiplied);
    tile.fill(QColor(62, 84, 122, 128));
    QImage paper(1024, 768, QImage::Format_RGB32);
    for ([[maybe_unused]] auto _ : state) {
        std::vector<unsigned> sorted = numbers;
        std::sort(sorted.begin(), sorted.end());
        benchmark::DoNotOptimize(sorted.data());
        paper.fill(Qt::white);
        QPainter painter(&paper);
        for (int i = 0; i < 24; ++i)
            painter.drawImage(QPoint(i * 32, i * 20), tile);
    }
}
BENCHMARK(Reference)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
