#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace Hesperin {

/// A figure and the floor that it is measured against, both by the names of their benchmarks.
struct Ratio {
    std::string what;
    std::string figure;
    std::string floor;
};

/// Runs all registered benchmarks, several times and in random order, and prints for each row the
/// ratio of the shortest times, or of the medians where the benchmark is one of wall time. Gives an
/// exit code.
int RunAndPrintRatios(int argc, char** argv, const std::vector<Ratio>& ratios);

} // namespace Hesperin
