#include "start_pairs.h"

#include <QElapsedTimer>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace Hesperin {

namespace {

double Milliseconds(const ProcessCall& call) {
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    QElapsedTimer timer;
    timer.start();
    process.start(call.program, call.arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("%s could not be measured", qPrintable(call.program));
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double Median(std::vector<double>& times) {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

} // namespace

void PrintPair(const char* what, const ProcessCall& figure, const ProcessCall& floor) {
    constexpr int rounds = 31;
    std::vector<double> figures;
    std::vector<double> floors;
    for (int round = 0; round <= rounds; ++round) {
        const double floorTime = Milliseconds(floor);
        const double figureTime = Milliseconds(figure);
        if (round == 0)
            continue; // warms the caches
        floors.push_back(floorTime);
        figures.push_back(figureTime);
    }
    const double floorMedian = Median(floors);
    const double figureMedian = Median(figures);
    std::printf("%s: %.1f ms, %.2f times the floor of %.1f ms\n", what, figureMedian,
                figureMedian / floorMedian, floorMedian);
}

} // namespace Hesperin
