#pragma once

#include "support/test_program.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

namespace Hesperin {

/// A folder of its own for one test.
class Files : public ::testing::Test {
protected:
    QString Path(const QString& name) const { return folder.filePath(name); }

    QString Write(const QString& name, const QByteArray& bytes) const {
        QDir().mkpath(QFileInfo(Path(name)).path());
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return Path(name);
    }

    QStringList Names() const {
        return QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    }

    QTemporaryDir folder;
};

} // namespace Hesperin
