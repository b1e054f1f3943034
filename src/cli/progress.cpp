#include "cli/progress.h"

#include "system/console.h"

#include <cstdio>

namespace Hesperin {

Progress::Progress(qsizetype count) : total(count), isTerminal(ComplaintsGoToATerminal()) {
    timer.start();
}

void Progress::Reach(qsizetype count, qsizetype of) {
    constexpr qint64 pause = 100; // milliseconds between two tellings
    done = count;
    total = of;
    if (!isTerminal || timer.elapsed() < nextAt)
        return;
    nextAt = timer.elapsed() + pause;
    isShown = true;
    std::fprintf(stderr, "\r%lld of %lld", static_cast<long long>(done),
                 static_cast<long long>(total));
    std::fflush(stderr);
}

void Progress::Clear() {
    if (!isShown)
        return;
    isShown = false;
    std::fputs("\r\033[K", stderr);
}

} // namespace Hesperin
