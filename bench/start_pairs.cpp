#include "start_pairs.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <vector>

#include <sys/resource.h>

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

/// Megabytes that the idle process of `call` holds in memory, shared libraries included.
double IdleMemory(const ProcessCall& call) {
    constexpr double kilobytesInOne = 1024;
    QProcess process;
    process.start(call.program, call.arguments);
    double memory = 0;
    if (process.waitForReadyRead()) {
        QFile status(QStringLiteral("/proc/%1/status").arg(process.processId()));
        if (status.open(QIODevice::ReadOnly))
            for (const QByteArray& line : status.readAll().split('\n'))
                if (line.startsWith("VmRSS:"))
                    memory = line.simplified().split(' ').value(1).toDouble() / kilobytesInOne;
    }
    process.kill();
    process.waitForFinished();
    return memory;
}

double Median(std::vector<double>& times) {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

} // namespace

void PrintPair(const char* what, const ProcessCall& figure, const ProcessCall& floor, int rounds) {
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

void PrintMemoryPair(const char* what, const ProcessCall& figure, const ProcessCall& floor) {
    constexpr int rounds = 5;
    std::vector<double> figures;
    std::vector<double> floors;
    for (int round = 0; round < rounds; ++round) {
        floors.push_back(IdleMemory(floor));
        figures.push_back(IdleMemory(figure));
    }
    const double floorMedian = Median(floors);
    const double figureMedian = Median(figures);
    std::printf("%s: %.1f MiB, %.2f times the floor of %.1f MiB\n", what, figureMedian,
                figureMedian / floorMedian, floorMedian);
}

void PrintPeakSoFar(const char* what, const ProcessCall& last) {
    const double time = Milliseconds(last);
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    std::printf("%s: %.1f ms, at most %.1f MiB in memory\n", what, time,
                static_cast<double>(usage.ru_maxrss) / 1024);
}

} // namespace Hesperin
