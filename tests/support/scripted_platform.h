#pragma once

#include "app/platform.h"

#include <QTemporaryDir>

#include <optional>
#include <vector>

namespace Hesperin {

/// A platform for tests: answers by script and keeps what it was asked.
class ScriptedPlatform : public Platform {
public:
    struct Box {
        BoxIcon icon;
        QString title;
        QString text;
    };

    void ShowMessage(BoxIcon icon, const QString& title, const QString& text) override;
    bool AskYesNo(const QString& title, const QString& text) override;
    int Ask(const Question& question) override;
    bool ShowOpenDialog(FileDialog& dialog) override { return Answer(dialog); }
    bool ShowSaveDialog(FileDialog& dialog) override { return Answer(dialog); }
    void SetFocus(Control& control) override { focus.append(control.Name()); }
    void Open(SecondaryWindow window) override { opened.push_back(window); }
    void FindAbility() override {}
    void ShowStatus(const QString& message) override { status.append(message); }
    std::optional<RunningInstance> OtherInstance() override { return otherInstance; }
    bool StartProgram(const QString& name) override;
    QStringList CalculatorNames() const override { return calculators; }
    QString ProgramFolder() const override { return programFolder; }
    QString SettingsFolder() const override { return settingsFolder; }
    QString DataFolder() const override { return dataFolder; }
    void EndProcess() override { ended = true; }

    /// Texts of the boxes shown so far.
    QStringList Texts() const;

    // What it answers.
    std::optional<QString> dialogPath; ///< none: the dialog is cancelled
    bool answerYes = true;
    std::optional<int> answer; ///< to questions with buttons of their own; none: as in a script
    std::optional<RunningInstance> otherInstance;
    QStringList calculators{"first", "second"};
    QStringList startable; ///< the programs that can be started
    QString programFolder;
    QString settingsFolder;
    QString dataFolder;

    // What it was asked.
    std::vector<Box> boxes;
    QStringList focus;
    std::vector<SecondaryWindow> opened;
    QStringList status;
    QStringList started;
    QString dialogFileName; ///< file name that the last dialog was opened with
    bool ended = false;

private:
    bool Answer(FileDialog& dialog);
};

} // namespace Hesperin
