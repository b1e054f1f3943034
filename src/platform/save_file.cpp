#include "platform/save_file.h"

#include <QSaveFile>

namespace Hesperin {

QString SaveFile(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    const bool complete =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    return complete ? QString() : file.errorString();
}

} // namespace Hesperin
