#include "cli/survey_progress.h"

#include "cli/progress.h"
#include "system/console.h"

#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>

namespace Hesperin {

namespace {

/// Looks now and then how far the survey is, as long as it lives.
class Teller {
public:
    explicit Teller(const SurveyProgress& looked) : progress(looked) {
        if (!ComplaintsGoToATerminal())
            return;
        try {
            thread = std::thread([this] { Tell(); });
        } catch (const std::system_error&) {
            // The system gives no thread for it: nothing is told.
        }
    }
    ~Teller() {
        {
            const std::scoped_lock lock(mutex);
            ended = true;
        }
        end.notify_one();
        if (thread.joinable())
            thread.join();
    }
    Teller(const Teller&) = delete;
    Teller& operator=(const Teller&) = delete;

private:
    void Tell() {
        constexpr std::chrono::milliseconds pause(100);
        Progress told(0);
        std::unique_lock lock(mutex);
        while (!end.wait_for(lock, pause, [this] { return ended; }))
            if (progress.all > 0)
                told.Reach(static_cast<qsizetype>(progress.done),
                           static_cast<qsizetype>(progress.all));
    }

    const SurveyProgress& progress;
    std::mutex mutex;
    std::condition_variable end;
    bool ended = false;
    std::thread thread;
};

} // namespace

Survey TakeSurveyTold(const SurveyWish& wish) {
    SurveyProgress progress;
    const Teller teller(progress);
    return TakeSurvey(wish, &progress);
}

} // namespace Hesperin
