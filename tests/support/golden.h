// Expected output as a file in tests/data.
#pragma once

#include "support/test_program.h"

namespace Hesperin {

/// What differs between the file `path` and `actual`; empty when nothing does. What should be looked at and
/// then accepted is written beside the file, with .new behind its name.
inline std::string Difference(const QString& path, const QString& actual) {
    const QStringList expected = QString::fromUtf8(ReadAll(path)).split('\n');
    const QStringList lines = actual.split('\n');
    QFile::remove(path + ".new");
    if (lines == expected)
        return {};
    if (QFile file(path + ".new"); file.open(QIODevice::WriteOnly))
        file.write(actual.toUtf8());
    qsizetype at = 0;
    while (lines.value(at) == expected.value(at) && at < lines.size())
        ++at;
    return QString("%1:%2: expected\n%3\nbut got\n%4")
        .arg(path, QString::number(at + 1), expected.value(at), lines.value(at))
        .toStdString();
}

} // namespace Hesperin
