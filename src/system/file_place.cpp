#include "system/file_place.h"

#include <QFileInfo>

namespace Hesperin {

QString FilePlace(const QString& path) {
    const QString place = QFileInfo(path).canonicalFilePath();
    return FileNameCase == Qt::CaseInsensitive ? place.toCaseFolded() : place;
}

} // namespace Hesperin
