#pragma once

#include "app/platform.h"

namespace Hesperin {

struct Program;
class MainWindow;

/// The platform of the window: message boxes, dialogs and secondary windows of the toolkit,
/// programs of the system.
class WindowPlatform : public Platform {
public:
    WindowPlatform();

    /// Message boxes and secondary windows open in front of `front` from now on. Before, a message
    /// box opens by itself, and no secondary window can.
    void Attach(Program& owner, MainWindow& front);

    void ShowMessage(BoxIcon icon, const QString& title, const QString& text) override;
    bool AskYesNo(const QString& title, const QString& text) override;
    int Ask(const Question& question) override;
    bool ShowOpenDialog(FileDialog& dialog) override;
    bool ShowSaveDialog(FileDialog& dialog) override;
    void SetFocus(Control& control) override;
    void Open(SecondaryWindow which) override;
    void FindAbility() override;
    void ShowStatus(const QString& message) override;
    std::optional<RunningInstance> OtherInstance() override { return instance.Other(); }
    bool StartProgram(const QString& name) override;
    QStringList CalculatorNames() const override;
    QString ProgramFolder() const override;
    QString SettingsFolder() const override { return SettingsFolderOfUser(); }
    QString DataFolder() const override { return DataFolderOfUser(); }
    void EndProcess() override;

private:
    Program* program = nullptr;
    MainWindow* window = nullptr;
    SingleInstance instance;
};

} // namespace Hesperin
