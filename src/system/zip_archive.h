#pragma once

#include "text/error.h"

#include <QByteArray>
#include <QHash>
#include <QStringList>

#include <memory>

namespace Hesperin {

/// The files of some kinds in a zip archive, such as the game's .pak files are. Names are told
/// apart without regard to letter case and to the separator between folders.
class ZipArchive {
public:
    /// Looks up the names that end with one of `endings`, in small letters with slashes.
    ZipArchive(const QString& path, const QStringList& endings);
    ~ZipArchive();
    ZipArchive(const ZipArchive&) = delete;
    ZipArchive& operator=(const ZipArchive&) = delete;

    /// Why the archive can't be read; nothing when it can.
    const Failure& Fault() const { return fault; }

    bool Has(const QString& name) const { return places.contains(Folded(name)); }

    /// The bytes of the file `name`, which must be there, or why they can't be had: more than
    /// `limit`, encrypted, damaged.
    Result<QByteArray> Read(const QString& name, qint64 limit);

private:
    struct Reader;

    struct Place {
        quint64 inDirectory;
        quint64 number;
    };

    static QString Folded(QString name);
    void ReadNames(const QStringList& endings);

    std::unique_ptr<Reader> reader;
    QHash<QString, Place> places;
    Failure fault;
};

} // namespace Hesperin
