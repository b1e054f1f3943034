#pragma once

#include "localisation/ability_texts.h"

#include <memory>
#include <optional>
#include <variant>

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

    /// Why nothing can be had from it; empty when it can be read.
    virtual QString Fault() const { return {}; }

    /// Whether there are texts in it at all.
    virtual bool HasTexts() const = 0;

    /// The bytes of a text, or why they can't be had; nothing when it isn't in here.
    virtual std::optional<std::variant<QByteArray, QString>> Read(const AbilityText& text) = 0;

private:
    QString name;
};

/// An unpacked game tree when `path` is a folder, else a game archive. The texts lie in it in
/// Text/Game/Creatures/Creature_abilities, below EN or RU as `languageCode` tells, below data, or
/// both. Letter case plays no part. Obstacles are told in the words of `state`.
std::unique_ptr<TextSource> OpenTextSource(const QString& path, const QString& languageCode,
                                           const SharedState& state);

} // namespace Hesperin
