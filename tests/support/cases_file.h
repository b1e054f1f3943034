// Cases that are told as text, in tests/data: a line at the margin is what is done, the indented lines below it are
// what comes of it. Empty lines and those that begin with # are remarks.
#pragma once

#include "support/test_program.h"

#include <gtest/gtest.h>

namespace Hesperin {

/// Does each case of the file `name` and compares. When something else comes, the file as it would be is written
/// beside it as NAME.new, to be accepted by moving it over the old one. `outcome` gives the text that comes of a line.
template <typename Outcome>
void ExpectCases(const QString& name, Outcome outcome) {
    const QString indent(4, ' ');
    const QString path = QLatin1String(TALMIR_SOURCE_DIR "/tests/data/") + name;
    const QStringList lines = QString::fromUtf8(ReadAll(path)).remove('\r').split('\n');
    EXPECT_GT(lines.size(), 1) << "no such file: " << path.toStdString();
    QStringList whole;
    for (qsizetype at = 0; at < lines.size();) {
        const QString act = lines[at++];
        QStringList expected;
        while (at < lines.size() && lines[at].startsWith(indent))
            expected.append(lines[at++].mid(indent.size()));
        QStringList came;
        if (!act.isEmpty() && !act.startsWith('#'))
            came = outcome(act).split('\n');
        came.removeAll({});
        EXPECT_EQ(came.join('\n'), expected.join('\n')) << name.toStdString() << ": " << act.toStdString();
        whole.append(act);
        for (const QString& line : came)
            whole.append(indent + line);
    }
    if (whole != lines)
        WriteFile(path + ".new", whole.join('\n').toUtf8());
}

} // namespace Hesperin
