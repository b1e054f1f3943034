#pragma once

#include <QByteArray>
#include <QHash>
#include <QStringList>

#include <memory>
#include <variant>

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

    /// Why the archive can't be read; empty when it can.
    const QString& Fault() const { return fault; }

    bool Has(const QString& name) const { return places.contains(Folded(name)); }

    /// What is said of a file of more than `limit` bytes.
    static QString TooLarge(qint64 limit);

    /// The bytes of the file `name`, which must be there, or why they can't be had: more than
    /// `limit`, encrypted, damaged.
    std::variant<QByteArray, QString> Read(const QString& name, qint64 limit);

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
    QString fault;
};

} // namespace Hesperin
