// Archives as the game has them, made for tests.
#pragma once

#include "support/test_program.h"

#include <gtest/gtest.h>
#include <minizip/zip.h>

namespace Hesperin {

using ArchiveEntries = std::vector<std::pair<QString, QByteArray>>;

inline void WriteArchive(const QString& path, const ArchiveEntries& entries, unsigned long flags = 0) {
    const QTemporaryDir folder; // whose name the library can spell
    const QString made = folder.filePath("made");
    const zipFile zip = zipOpen64(made.toLocal8Bit().constData(), APPEND_STATUS_CREATE);
    for (const auto& [entry, bytes] : entries) {
        zip_fileinfo info{};
        zipOpenNewFileInZip4(zip, entry.toUtf8().constData(), &info, nullptr, 0, nullptr, 0, nullptr, Z_DEFLATED,
                             Z_BEST_SPEED, 0, -MAX_WBITS, DEF_MEM_LEVEL, Z_DEFAULT_STRATEGY, nullptr, 0, 0, flags);
        zipWriteInFileInZip(zip, bytes.constData(), static_cast<unsigned>(bytes.size()));
        zipCloseFileInZip(zip);
    }
    EXPECT_EQ(zipClose(zip, nullptr), ZIP_OK);
    WriteFile(path, ReadAll(made));
}

} // namespace Hesperin
