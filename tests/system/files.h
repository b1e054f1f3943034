#pragma once

#include "support/error_in_words.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <QDir>

namespace Hesperin {

/// A folder of its own for one test.
class Files : public ::testing::Test {
protected:
    QString Path(const QString& name) const { return folder.filePath(name); }
    QByteArray Content(const QString& name) const { return ReadAll(Path(name)); }

    QString Write(const QString& name, const QByteArray& bytes) const {
        WriteFile(Path(name), bytes);
        return Path(name);
    }

    QStringList Names() const {
        return QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    }

    QTemporaryDir folder;
};

} // namespace Hesperin
