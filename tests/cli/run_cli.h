// Runs the real program of the command line.
#pragma once

#include "support/test_program.h"

#include <QProcess>
#include <QTemporaryFile>

namespace Hesperin {

struct CliOutcome {
    int code = -1; ///< also for a program that didn't end by itself
    QString out;
    QString err;

    QStringList Lines() const { return out.split('\n', Qt::SkipEmptyParts); }
    QStringList Complaints() const { return err.split('\n', Qt::SkipEmptyParts); }
};

inline CliOutcome FinishCli(QProcess& process) {
    process.closeWriteChannel();
    process.waitForFinished();
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()), QString::fromUtf8(process.readAllStandardError())};
}

/// Runs it, or a copy of it, in `folder`, or where the test runs.
inline CliOutcome RunCli(const QStringList& arguments, const QByteArray& input = {}, const QString& folder = {},
                         const QString& program = TestedProgram("talmir-cli")) {
    QProcess process;
    process.setWorkingDirectory(folder);
    QTemporaryFile file; // a pipe of the toolkit has no orderly end under Wine
    if (!OnLinux && !input.isEmpty() && file.open()) {
        file.write(input);
        file.close();
        process.setStandardInputFile(file.fileName());
    }
    process.start(program, arguments);
    process.write(OnLinux ? input : QByteArray());
    return FinishCli(process);
}

/// Runs a command of the shell in `folder`, where "$0" is the program.
inline CliOutcome RunShell(const QString& command, const QString& folder = {}) {
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start("sh", {"-c", command, TestedProgram("talmir-cli")});
    return FinishCli(process);
}

} // namespace Hesperin
