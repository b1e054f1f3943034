#pragma once

#include "app/history.h"
#include "app/platform.h"
#include "app/shared_state.h"
#include "form/main_form.h"

#include <functional>
#include <memory>

namespace Hesperin {

struct Survey;

/// The running program: the one shared state, the one main window as data, and the platform it runs
/// on. Every handler is a free function over it.
struct Program {
    explicit Program(Platform& host) : platform(host) {}

    SharedState state;
    MainForm form;
    Platform& platform; // outlives the program
    History history{*this};

    /// The survey of a mod that is loaded; null when there is none. See app/standing.h.
    std::shared_ptr<const Survey> survey;

    /// Runs when results, shown file, survey or language have changed: for the windows that show
    /// more of them.
    std::function<void()> resultsChanged;

    /// A message box with the warning title.
    void Warn(BoxIcon icon, const QString& text) {
        platform.ShowMessage(icon, state.messages.WarningTitle, text);
    }

    /// A critical box that tells the error. Gives it on.
    Error Refuse(const Error& error);
};

} // namespace Hesperin
