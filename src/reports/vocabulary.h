// The words that a mod may use as items of a creature's lists.
#pragma once

#include "text/error.h"

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QStringList>

#include <array>
#include <mutex>

namespace Hesperin {

enum class WordKind : std::uint8_t { Ability, Spell, Specability, Count };

/// Where the game and its mods list their abilities and spells, below the data's root.
extern const QStringList VocabularyFiles;

/// The largest of these files that is read, in bytes.
inline constexpr qint64 LargestVocabularyFile = 1 << 22;

/// The kind of the word as an item of KnownSpells.
WordKind KindOfSpell(QStringView word);

/// Letter case never counts.
class Vocabulary {
public:
    /// The catalogue's words.
    Vocabulary();

    /// Adds the words that one of the VocabularyFiles lists. Refuses one that isn't well-formed.
    Failure Add(const QByteArray& bytes);

    bool Knows(WordKind kind, const QString& word) const;

    /// The known word that is spelled most like it. May be called by several threads at once.
    QString Nearest(WordKind kind, const QString& word) const;

private:
    struct Words {
        QStringList all;
        QSet<QString> known; ///< in capital letters
        mutable QHash<QString, QString> nearest;
    };

    void AddWord(WordKind kind, const QString& word);

    Words& Of(WordKind kind) { return words[static_cast<std::size_t>(kind)]; }
    const Words& Of(WordKind kind) const { return words[static_cast<std::size_t>(kind)]; }

    std::array<Words, static_cast<std::size_t>(WordKind::Count)> words;
    mutable std::mutex mutex; ///< over what is already known of the nearest words
};

} // namespace Hesperin
