#pragma once

#include "text/error.h"

#include <QByteArray>
#include <QHash>
#include <QStringList>

#include <memory>
#include <mutex>
#include <vector>

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

    /// The names that were looked up, as the archive spells them but with slashes, in any order.
    QStringList Names() const;

    /// The bytes of the file `name`, which must be there, or why they can't be had: more than
    /// `limit`, encrypted, damaged. May be called by several threads at once.
    Result<QByteArray> Read(const QString& name, qint64 limit) const;

    /// The first bytes of it, `count` at most.
    Result<QByteArray> ReadStart(const QString& name, qint64 count) const;

private:
    struct Reader;

    struct Place {
        quint64 inDirectory;
        quint64 number;
        QString spelled; ///< empty: as folded
    };

    enum class Wish : std::uint8_t { Whole, Start };

    static QString WithSlashes(QString name);
    static QString Folded(const QString& name) { return WithSlashes(name).toCaseFolded(); }
    void ReadNames(const QStringList& endings);
    Result<QByteArray> Unpack(Reader& reader, const QString& name, qint64 limit, Wish wish) const;
    Result<QByteArray> UnpackByAny(const QString& name, qint64 limit, Wish wish) const;

    QString path;
    mutable std::mutex mutex; ///< of `idle`
    mutable std::vector<std::unique_ptr<Reader>> idle;
    QHash<QString, Place> places;
    Failure fault;
};

} // namespace Hesperin
