#pragma once

#include "text/error.h"

#include <QByteArray>
#include <QStringList>

#include <memory>
#include <optional>

namespace Hesperin {

/// Something that the ability texts of one language may come out of.
class TextSource {
public:
    explicit TextSource(QString path) : name(std::move(path)) {}
    virtual ~TextSource() = default;
    TextSource(const TextSource&) = delete;
    TextSource& operator=(const TextSource&) = delete;

    /// As the user named it.
    const QString& Name() const { return name; }

    /// Why nothing can be had from it; nothing when it can be read.
    virtual Failure Fault() const { return {}; }

    /// Whether the texts of abilities lie in it in their own places; an archive is taken to have
    /// them.
    virtual bool HasTexts() { return true; }

    /// The bytes of the file at `levels` below the game's data, a text or the table of abilities,
    /// or why they can't be had, as when there are more than `limit`; nothing when it isn't in
    /// here.
    virtual std::optional<Result<QByteArray>> Read(const QStringList& levels, qint64 limit) = 0;

private:
    QString name;
};

/// An unpacked game tree when `path` is a folder, else a game archive. The game's data lie in it
/// below EN or RU as `languageCode` tells, below data, or both, or at its top. Letter case plays no
/// part.
std::unique_ptr<TextSource> OpenTextSource(const QString& path, const QString& languageCode);

} // namespace Hesperin
