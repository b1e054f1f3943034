#include "system/program_places.h"

#include <QDir>
#include <QStandardPaths>

namespace Hesperin {

bool IsSystemFolder(const QString& folder) {
#ifdef Q_OS_UNIX
    const QString path = QDir::cleanPath(folder) + u'/';
    return path.startsWith(QLatin1String("/usr/")) || path.startsWith(QLatin1String("/bin/"));
#else
    Q_UNUSED(folder) // there such a folder can't be written, or belongs to this program alone
    return false;
#endif
}

QString SettingsFolderOfUser() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QLatin1String("/talmir");
}

QString DataFolderOfUser() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QLatin1String("/talmir");
}

} // namespace Hesperin
