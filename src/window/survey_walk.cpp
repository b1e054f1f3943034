#include "window/survey_walk.h"

namespace Hesperin {

namespace {

constexpr int BetweenTicks = 50; // milliseconds

} // namespace

SurveyWalk::SurveyWalk(Listener told) : listener(std::move(told)) {
    QObject::connect(&ticks, &QTimer::timeout, &ticks, [this] { listener.progress(progress); });
}

void SurveyWalk::Start(const SurveyWish& wish) {
    Cancel();
    progress.done = 0;
    progress.all = 0;
    progress.cancel = false;
    taken = std::make_shared<Survey>();
    const auto take = [wish, result = taken, watched = &progress] {
        *result = TakeSurvey(wish, watched);
    };
    thread.reset(QThread::create(take));
    QObject::connect(thread.get(), &QThread::finished, &ticks, [this] { Finish(); });
    ticks.start(BetweenTicks);
    thread->start();
    if (!thread->isRunning() && !thread->isFinished()) { // the system has no thread left
        take();
        Deliver();
    }
}

void SurveyWalk::Cancel() {
    if (!thread)
        return;
    progress.cancel = true;
    thread->wait();
    thread.reset(); // what it may still have said of its end is lost with it
    ticks.stop();
    listener.idle();
}

void SurveyWalk::Finish() {
    if (thread && thread->isFinished()) // else it is the end of one that was cancelled, told late
        Deliver();
}

void SurveyWalk::Deliver() {
    thread->wait();
    thread.reset();
    ticks.stop();
    listener.idle();
    if (!taken->cancelled)
        listener.done(std::move(taken));
}

} // namespace Hesperin
