#include "BenchMain.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <benchmark/benchmark.h>

namespace quillon::bench {

namespace {

int runWith(int argc, char **argv, const std::function<void()> &prepare, const std::function<void()> &finish)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    if (prepare)
        prepare();
    benchmark::RunSpecifiedBenchmarks();
    if (finish)
        finish();
    benchmark::Shutdown();
    return 0;
}

} // namespace

int RunBenchmarks(int argc, char **argv, const std::function<void()> &prepare, const std::function<void()> &finish)
{
    QCoreApplication app(argc, argv);
    return runWith(argc, argv, prepare, finish);
}

int RunGuiBenchmarks(int argc, char **argv, const std::function<void()> &prepare, const std::function<void()> &finish)
{
    // Fonts and page devices want a GUI application; no screen is needed.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    return runWith(argc, argv, prepare, finish);
}

} // namespace quillon::bench
