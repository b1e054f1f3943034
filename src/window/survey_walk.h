#pragma once

#include "reports/survey.h"

#include <QThread>
#include <QTimer>

#include <functional>
#include <memory>

namespace Hesperin {

/// Takes a survey in a thread of its own, while the window goes on.
class SurveyWalk {
public:
    /// `done` gets the survey, unless it was cancelled; `progress` is told now and then, `idle`
    /// when the walk has ended either way. All are called in the window's thread.
    struct Listener {
        std::function<void(std::shared_ptr<const Survey>)> done;
        std::function<void(const SurveyProgress&)> progress;
        std::function<void()> idle;
    };

    explicit SurveyWalk(Listener told);
    ~SurveyWalk() { Cancel(); }
    SurveyWalk(const SurveyWalk&) = delete;
    SurveyWalk& operator=(const SurveyWalk&) = delete;

    /// Ends a walk that still runs, and begins one.
    void Start(const SurveyWish& wish);

    /// Ends a walk that still runs and waits until its thread has gone, which is soon.
    void Cancel();

    bool Running() const { return thread != nullptr; }

private:
    void Finish();
    void Deliver();

    Listener listener;
    SurveyProgress progress;
    std::shared_ptr<Survey> taken;
    std::unique_ptr<QThread> thread;
    QTimer ticks;
};

} // namespace Hesperin
