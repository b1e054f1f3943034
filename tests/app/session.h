// A user's session with the program, told as text.
#pragma once

#include "app/window_snapshot.h"

#include <QDir>

#include <memory>

namespace Hesperin {

/// Does what a user does, and tells in order all that comes of it: boxes, dialogs, what has changed in the window
/// and the state by then. Works in a folder of its own, which is the current one meanwhile.
class Session : public ScriptedPlatform {
public:
    Session();
    ~Session() override { QDir::setCurrent(home); }

    /// Does what a line says: a verb, what it is about, and the rest; " ; " parts several, and `quietly` in front tells
    /// nothing. `\n` and `\0` are those characters, and `x{5}` is five x. `start EN` and `start RU` begin anew and tell
    /// no changes.
    QString Outcome(const QString& line);

    void ShowMessage(BoxIcon icon, const QString& title, const QString& text) override;
    bool AskYesNo(const QString& title, const QString& text) override;
    bool ShowOpenDialog(FileDialog& dialog) override { return Answer("open", dialog); }
    bool ShowSaveDialog(FileDialog& dialog) override { return Answer("save", dialog); }
    void SetFocus(Control& control) override { Tell("focus on " + control.Name()); }
    void Open(SecondaryWindow window) override;
    void ShowStatus(const QString& message) override { Tell("status window: " + message); }
    bool StartProgram(const QString& name) override;
    void EndProcess() override { Tell("the process ends"); }

private:
    void Do(const QString& verb, const QString& all);
    void Prepare(const QString& verb, const QString& all, const QString& name, const QString& rest);
    void Start(const QString& language);
    void Tell(QString what);
    void TellChanges();
    bool Answer(const char* dialog, FileDialog& settings);

    const QString home = QDir::currentPath();
    QTemporaryDir folder;
    std::unique_ptr<Program> program;
    QMap<QString, QString> words; ///< as last told
    QStringList told;
};

} // namespace Hesperin
