#pragma once

#include "engine/shared_state.h"
#include "form/main_form.h"
#include "platform/platform.h"

namespace Hesperin {

/// The running program: the one shared state, the one main window as data, and the platform it runs
/// on. Every handler is a free function over it.
struct Program {
    explicit Program(Platform& host) : platform(host) {}

    SharedState state;
    MainForm form;
    Platform& platform; // outlives the program

    /// Why the last file command could not do its work, as the user was told; empty when it did,
    /// was cancelled, or asked for a name.
    QString failure;

    /// A message box with the warning title.
    void Warn(BoxIcon icon, const QString& text) {
        platform.ShowMessage(icon, state.WarningTitle, text);
    }

    /// Locks the main window and opens the status window with these words.
    void ShowStatus(const QString& message) {
        form.frmMain.SetEnabled(false);
        platform.ShowStatus(message);
    }
};

} // namespace Hesperin
