#include "ratios.h"

#include <cstdio>
#include <map>

namespace Hesperin {

namespace {

/// Prints as usual and keeps the median of each benchmark.
class MedianKeeper : public benchmark::ConsoleReporter {
public:
    MedianKeeper() : ConsoleReporter(OO_Tabular) {}

    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs)
            if (run.aggregate_name == "median")
                medians[run.run_name.function_name] = run.run_name.time_type.empty()
                                                          ? run.GetAdjustedCPUTime()
                                                          : run.GetAdjustedRealTime();
    }

    std::map<std::string, double> medians;
};

} // namespace

int RunAndPrintRatios(int argc, char** argv, const std::vector<Ratio>& ratios) {
    std::vector<char*> arguments(argv, argv + argc);
    std::string repetitions = "--benchmark_repetitions=9";
    std::string interleaved = "--benchmark_enable_random_interleaving=true";
    std::string aggregates = "--benchmark_report_aggregates_only=true";
    std::string shortRuns = "--benchmark_min_time=0.05";
    for (std::string* argument : {&repetitions, &interleaved, &aggregates, &shortRuns})
        arguments.insert(arguments.begin() + 1, argument->data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());

    MedianKeeper keeper;
    benchmark::RunSpecifiedBenchmarks(&keeper);
    for (const Ratio& ratio : ratios) {
        const double floor = keeper.medians[ratio.floor];
        const double figure = keeper.medians[ratio.figure];
        if (floor > 0 && figure > 0)
            std::printf("%s: %.0f ns, %.2f times the floor of %.0f ns (%s)\n", ratio.what.c_str(),
                        figure, figure / floor, floor, ratio.floor.c_str());
    }
    return 0;
}

} // namespace Hesperin
