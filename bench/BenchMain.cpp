#include "BenchMain.h"

#include <QCoreApplication>
#include <benchmark/benchmark.h>

namespace quillon::bench {

int RunBenchmarks(int argc, char **argv, const std::function<void()> &prepare, const std::function<void()> &finish)
{
    QCoreApplication app(argc, argv);
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

} // namespace quillon::bench
