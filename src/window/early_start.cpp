#include "window/early_start.h"

#include <QLibrary>
#include <QThread>

#include <cstdlib>
#include <memory>

#ifdef __GLIBC__
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace Hesperin {

namespace {

/// Reads the configuration of fonts, which the toolkit would otherwise do at the first text. On a
/// system without that library nothing happens.
void ReadFontConfiguration() {
#ifdef Q_OS_LINUX
    constexpr int version = 1;
    if (const QFunctionPointer initialise =
            QLibrary::resolve(QStringLiteral("fontconfig"), version, "FcInit"))
        initialise();
#endif
}

/// Fetches the memory that the window takes in one go, and keeps what is freed: page by page it
/// costs 3 ms more. No other C library offers that.
void FetchMemory() {
#ifdef __GLIBC__
    constexpr std::size_t expected = 2U << 20U;
    constexpr int kept = 4 << 20;
    mallopt(M_MMAP_THRESHOLD, kept);
    mallopt(M_TRIM_THRESHOLD, kept);
    void* memory = std::malloc(expected);
    const std::size_t page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    void* firstPage = memory;
    std::size_t room = expected;
    if (std::align(page, expected - page, firstPage, room) != nullptr)
        madvise(firstPage, expected - page, MADV_POPULATE_WRITE);
    std::free(memory);
#endif
}

} // namespace

EarlyStart::EarlyStart() {
    FetchMemory();
    QThread::currentThread(); // the toolkit takes the first thread that asks for the main one
    work = std::thread([this] {
        platform.OtherInstanceRuns();
        ReadFontConfiguration();
    });
}

void EarlyStart::Await() {
    if (work.joinable())
        work.join();
}

} // namespace Hesperin
