#include "ratios.h"

#include <algorithm>
#include <cstdio>
#include <map>

namespace Hesperin {

namespace {

/// Prints nothing and keeps of each benchmark what its repetitions took.
class TimeKeeper : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            if (run.run_type == Run::RT_Iteration && !run.error_occurred) {
                const auto& name = run.run_name;
                Times& times = known[name.args.empty() ? name.function_name
                                                       : name.function_name + '/' + name.args];
                times.wall = !run.run_name.time_type.empty();
                times.all.push_back(times.wall ? run.GetAdjustedRealTime()
                                               : run.GetAdjustedCPUTime());
            }
    }

    /// In nanoseconds. Of processor time the shortest: whatever else the machine does only adds to
    /// it. Of wall time, most of it the disk's, the median. 0 when nothing was measured.
    double TimeOf(const std::string& benchmark) {
        Times& times = known[benchmark];
        if (times.all.empty())
            return 0;
        std::sort(times.all.begin(), times.all.end());
        return times.wall ? times.all[times.all.size() / 2] : times.all.front();
    }

    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& one : known)
            names.push_back(one.first);
        return names;
    }

private:
    struct Times {
        bool wall = false;
        std::vector<double> all;
    };
    std::map<std::string, Times> known;
};

} // namespace

int RunAndPrintRatios(int argc, char** argv, const std::vector<Ratio>& ratios) {
    std::vector<char*> arguments(argv, argv + argc);
    std::string repetitions = "--benchmark_repetitions=15";
    std::string interleaved = "--benchmark_enable_random_interleaving=true";
    std::string shortRuns = "--benchmark_min_time=0.05";
    for (std::string* argument : {&repetitions, &interleaved, &shortRuns})
        arguments.insert(arguments.begin() + 1, argument->data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());

    TimeKeeper keeper;
    benchmark::RunSpecifiedBenchmarks(&keeper);
    for (const std::string& name : keeper.Names())
        std::printf("%s: %.0f ns\n", name.c_str(), keeper.TimeOf(name));
    for (const Ratio& ratio : ratios) {
        const double floor = keeper.TimeOf(ratio.floor);
        const double figure = keeper.TimeOf(ratio.figure);
        if (floor > 0 && figure > 0)
            std::printf("%s: %.0f ns, %.2f times the floor of %.0f ns (%s)\n", ratio.what.c_str(),
                        figure, figure / floor, floor, ratio.floor.c_str());
    }
    return 0;
}

} // namespace Hesperin
