#pragma once

#include "app/program.h"
#include "window/watched_file.h"

#include <QLabel>
#include <QMenuBar>
#include <QPushButton>

namespace Hesperin {

/// What the window tells of its file at the right end of the menu bar: a mark for what isn't saved,
/// and a bar when somebody else has changed the file on disk.
class FileStatus {
public:
    /// `opener` opens a file.
    FileStatus(Program& program, QMenuBar& menus, std::function<void(const QString&)> opener);
    FileStatus(const FileStatus&) = delete;
    FileStatus& operator=(const FileStatus&) = delete;

    /// What the user does has changed something.
    void Follow();

private:
    void Look();
    void Keep();
    void ShowBar(bool shown);

    Program& program;
    QMenuBar& menus;
    QLabel* mark;
    QWidget* bar;
    QLabel* words;
    QPushButton* reload;
    QPushButton* keep;
    std::function<void(const QString&)> open;
    WatchedFile watched;
    QByteArray onDisk;              ///< what the bar tells of
    std::optional<QByteArray> kept; ///< the change that the user wants to hear no more of
    QString file;                   ///< that the window shows
    QByteArray bytes;               ///< of it when it was opened or saved
};

} // namespace Hesperin
