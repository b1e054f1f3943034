#pragma once

#include <QString>

namespace Hesperin {

/// Whether programs in this folder belong to all users of the computer. Then the program keeps
/// nothing there, also where an administrator starts it, who could write.
bool IsSystemFolder(const QString& folder);

/// Folder for this program's settings of the user, which need not exist yet.
QString SettingsFolderOfUser();

/// Folder for what this program keeps for the user, which need not exist yet.
QString DataFolderOfUser();

/// Where the program keeps its settings and the ability texts: in its own folder, or where that
/// can't be written, in the user's. What lies in the user's wins.
struct ProgramPlaces {
    QString programFolder;
    QString settingsFolder;
    bool installedForAll = IsSystemFolder(programFolder);
};

} // namespace Hesperin
