#include "system/visit_all.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace Hesperin {

namespace {

/// What the threads share. The first exception ends the visit and goes to the caller.
struct Visit {
    const std::size_t count;
    const std::function<bool(std::size_t)>& one;
    std::atomic<std::size_t> next{0};
    std::mutex mutex;
    std::exception_ptr thrown;

    void Run() {
        try {
            for (std::size_t at = next++; at < count; at = next++)
                if (!one(at))
                    next = count;
        } catch (...) {
            next = count;
            const std::scoped_lock lock(mutex);
            if (!thrown)
                thrown = std::current_exception();
        }
    }
};

} // namespace

void VisitAll(std::size_t count, unsigned jobs, const std::function<bool(std::size_t)>& visit) {
    Visit all{count, visit, {}, {}, {}};
    const std::size_t wanted = jobs > 0 ? jobs : std::thread::hardware_concurrency();
    std::vector<std::thread> helpers; // of the calling thread
    try {
        while (helpers.size() + 1 < std::min(wanted, count))
            helpers.emplace_back([&all] { all.Run(); });
    } catch (const std::system_error&) {
        // The system gives no more threads: those that there are do it all.
    }
    all.Run();
    for (std::thread& helper : helpers)
        helper.join();
    if (all.thrown)
        std::rethrow_exception(all.thrown);
}

} // namespace Hesperin
