// Runs the real program of the command line.
#pragma once

#include "support/test_program.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStringList>

namespace Hesperin {

struct CliOutcome {
    int code = -1;
    QString out;
    QString err;

    QStringList Lines() const { return out.split('\n', Qt::SkipEmptyParts); }
    QStringList Complaints() const { return err.split('\n', Qt::SkipEmptyParts); }

    /// The object on line `line` of the output.
    QJsonObject Json(qsizetype line = 0) const {
        return QJsonDocument::fromJson(Lines().value(line).toUtf8()).object();
    }
};

inline CliOutcome FinishCli(QProcess& process) {
    process.waitForFinished();
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()), QString::fromUtf8(process.readAllStandardError())};
}

inline CliOutcome RunCli(const QStringList& arguments, const QByteArray& input = {}) {
    QProcess process;
    process.start(TestedProgram("talmir-cli"), arguments);
    process.write(input);
    process.closeWriteChannel();
    return FinishCli(process);
}

/// Plays a script from standard input.
inline CliOutcome Play(const QByteArray& script, const QStringList& options = {}) {
    return RunCli(QStringList{"run", "-"} + options, script);
}

} // namespace Hesperin
