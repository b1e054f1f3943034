#include "platform/read_file.h"

#include <QFile>
#include <QFileInfo>

namespace Hesperin {

std::variant<QByteArray, ReadProblem> ReadFile(const QString& path, qint64 limit) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        const QFileInfo info(path);
        if (info.isDir())
            return ReadProblem{ReadProblem::Kind::IsFolder, {}};
        return ReadProblem{info.exists() ? ReadProblem::Kind::Unreadable
                                         : ReadProblem::Kind::Missing,
                           file.errorString()};
    }
    const qint64 told = file.size(); // 0 for a file that doesn't tell
    if (told > limit)
        return ReadProblem{ReadProblem::Kind::TooLarge, {}};
    QByteArray bytes = file.read(told > 0 ? told + 1 : limit + 1);
    if (told > 0 && bytes.size() > told) // it grows
        bytes += file.read(limit + 1 - bytes.size());
    if (file.error() != QFileDevice::NoError)
        return ReadProblem{ReadProblem::Kind::Unreadable, file.errorString()};
    if (bytes.size() > limit)
        return ReadProblem{ReadProblem::Kind::TooLarge, {}};
    return bytes;
}

} // namespace Hesperin
