#pragma once

#include <functional>

namespace quillon::bench {

// Runs a benchmark program's benchmarks with the application object the SQLite driver (a plugin)
// is found through; `prepare` builds what they share before they run, `finish` releases it.
int RunBenchmarks(int argc, char **argv, const std::function<void()> &prepare = {},
                  const std::function<void()> &finish = {});
// The same with a GUI application (offscreen when no platform is named), for fonts and pages.
int RunGuiBenchmarks(int argc, char **argv, const std::function<void()> &prepare = {},
                     const std::function<void()> &finish = {});

} // namespace quillon::bench
