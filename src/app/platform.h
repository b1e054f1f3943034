// What toolkit and operating system give to the program. The window and the command line each have
// their own; tests have one that answers by script.
#pragma once

#include "form/file_dialog.h"
#include "localisation/message_box.h"
#include "system/program_places.h"
#include "system/single_instance.h"

#include <QStringList>

namespace Hesperin {

/// The windows that open beside the main window. Each locks it until its button is pressed, but for
/// those from the survey on, which stay open beside it.
enum class SecondaryWindow : std::uint8_t { About, AbilityInformation, Survey, Explanation, Solve };

class Platform {
public:
    virtual ~Platform() = default;

    /// A modal message box with one OK button; returns when it has been answered.
    virtual void ShowMessage(BoxIcon icon, const QString& title, const QString& text) = 0;

    /// A modal question box with Yes and No; true for Yes.
    virtual bool AskYesNo(const QString& title, const QString& text) = 0;

    /// A modal question box with buttons of its own. Gives the place of the one pressed; `cancel`
    /// also when the box was closed otherwise.
    virtual int Ask(const Question& question) = 0;

    /// Shows the open dialog with these settings. True: `dialog.FileName` is what the user chose.
    /// False: cancelled, and nothing changed.
    virtual bool ShowOpenDialog(FileDialog& dialog) = 0;

    /// The same with the save dialog.
    virtual bool ShowSaveDialog(FileDialog& dialog) = 0;

    virtual void SetFocus(Control& control) = 0;

    virtual void Open(SecondaryWindow window) = 0;

    /// Lets the user look for an ability on its page.
    virtual void FindAbility() = 0;

    /// Opens the status window with these words. It enables the main window again when it closes.
    virtual void ShowStatus(const QString& message) = 0;

    /// The other instance of the program that runs for this user, if there is one.
    virtual std::optional<RunningInstance> OtherInstance() = 0;

    /// Starts another program and doesn't wait for it. False: it can't be started.
    virtual bool StartProgram(const QString& name) = 0;

    /// Programs that serve as calculator here, the preferred one first.
    virtual QStringList CalculatorNames() const = 0;

    /// Folder of the executable, without a separator at the end.
    virtual QString ProgramFolder() const = 0;

    /// Folder for this program's settings of the user, which need not exist yet.
    virtual QString SettingsFolder() const = 0;

    /// Folder for what this program keeps for the user, which need not exist yet.
    virtual QString DataFolder() const = 0;

    ProgramPlaces Places() const { return {ProgramFolder(), SettingsFolder()}; }

    virtual void EndProcess() = 0;
};

} // namespace Hesperin
