#pragma once

#include <QApplication>
#include <QFile>
#include <benchmark/benchmark.h>

/// The `main` of a benchmark of windows, which are made on no screen, in the folder that the build has
/// assembled.
inline int RunWindowBenchmarks(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    // The benchmarks lie in bench/ beside that folder.
    if (!qEnvironmentVariableIsSet("QUORVEX_INSTALL"))
        qputenv("QUORVEX_INSTALL",
                QFile::encodeName(app.applicationDirPath() + QStringLiteral("/../install")));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
