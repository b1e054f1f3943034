#include "system/undecodable_names.h"

#ifdef Q_OS_UNIX
#include <QFile>

#include <filesystem>
#endif

namespace Hesperin {

QStringList UndecodableNames(const QString& folder) {
    QStringList names;
#ifdef Q_OS_UNIX
    namespace fs = std::filesystem;
    std::error_code fault;
    fs::directory_iterator entry(QFile::encodeName(folder).toStdString(), fault);
    for (; !fault && entry != fs::directory_iterator(); entry.increment(fault)) {
        const std::string spelled = entry->path().filename().native();
        const QByteArrayView name(spelled);
        std::error_code unknown;
        if (!name.startsWith('.') && !name.isValidUtf8())
            names.append(QString::fromUtf8(name) + (entry->is_directory(unknown) ? "/" : ""));
    }
    names.sort();
#else
    Q_UNUSED(folder) // there names are no bytes
#endif
    return names;
}

} // namespace Hesperin
