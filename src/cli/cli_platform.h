#pragma once

#include "app/platform.h"

#include <optional>
#include <vector>

namespace Hesperin {

/// The platform of the command line: every box is answered with OK and kept, dialogs give the path
/// that the user named, nothing is started and no setting is touched.
class CliPlatform : public Platform {
public:
    void ShowMessage(BoxIcon icon, const QString& title, const QString& text) override;
    bool AskYesNo(const QString& title, const QString& text) override;
    int Ask(const Question& question) override;
    bool ShowOpenDialog(FileDialog& dialog) override { return Answer(dialog); }
    bool ShowSaveDialog(FileDialog& dialog) override { return Answer(dialog); }
    void SetFocus(Control& control) override { focus = control.Name(); }
    void Open(SecondaryWindow) override {}
    void FindAbility() override {}
    void ShowStatus(const QString&) override {}
    std::optional<RunningInstance> OtherInstance() override { return std::nullopt; }
    bool StartProgram(const QString&) override { return false; }
    QStringList CalculatorNames() const override { return {}; }
    QString ProgramFolder() const override;
    QString SettingsFolder() const override { return SettingsFolderOfUser(); }
    QString DataFolder() const override { return DataFolderOfUser(); }
    void EndProcess() override {}

    /// What the next file dialog gives; none: it is cancelled.
    std::optional<QString> dialogPath;

    /// The boxes shown since they were last taken.
    std::vector<ShownMessage> messages;

    /// Name of the control last given the focus; empty at first.
    QString focus;

private:
    bool Answer(FileDialog& dialog) const;
};

} // namespace Hesperin
