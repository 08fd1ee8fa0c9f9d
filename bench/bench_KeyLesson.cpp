#include "core/drills/KeyLesson.h"
#include "platform/Files.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace {

void OpenHundredThousandGroups(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"lesson.txt"_s);
    QByteArray text("A long lesson\r\n");
    for (int line = 0; line < 10000; ++line)
        text += "asdf jkl; fdsa ;lkj asjk dfl; gh hg aa ;;\r\n";
    Public_Function::ReplaceFile(path, folder.filePath(u"lesson.tmp"_s), text);
    for ([[maybe_unused]] auto _ : state) {
        const Public_Function::KeyLessonResult result = Public_Function::LoadKeyLesson(path);
        if (result.lesson.groups.size() != 100000)
            state.SkipWithError("the lesson was not read");
    }
}
BENCHMARK(OpenHundredThousandGroups)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
