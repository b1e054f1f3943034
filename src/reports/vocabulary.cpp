#include "reports/vocabulary.h"

#include "catalogue/ability_catalogue.h"
#include "creature_files/file_tokens.h"
#include "text/nearest.h"
#include "xml/xml_limits.h"

#include <QXmlStreamReader>

namespace Hesperin {

namespace {

/// No tag and no document type of such a file comes near it, in characters.
constexpr qsizetype LongestTag = 1 << 15;

/// Of all entities together, in characters.
constexpr qsizetype LongestEntities = 1 << 20;

constexpr QStringView SpellPrefix = u"SPELL_";
constexpr QStringView SpecabilityPrefix = u"SPELL_ABILITY_";

} // namespace

const QStringList VocabularyFiles{
    QStringLiteral("GameMechanics/RefTables/CombatAbilities.xdb"),
    QStringLiteral("GameMechanics/RefTables/UndividedSpells.xdb"),
};

WordKind KindOfSpell(QStringView word) {
    return word.startsWith(SpecabilityPrefix, Qt::CaseInsensitive) ? WordKind::Specability
                                                                   : WordKind::Spell;
}

Vocabulary::Vocabulary() {
    for (std::size_t i = 1; i < AbilityTokens().size(); ++i)
        AddWord(WordKind::Ability, AbilityTokens()[i]);
    for (std::size_t i = 1; i < SpellTokens().size(); ++i)
        AddWord(WordKind::Spell, SpellTokens()[i]);
    for (const QString& token : SpecabilityTokens())
        AddWord(WordKind::Specability, token);
}

Failure Vocabulary::Add(const QByteArray& bytes) {
    if (HasEndlessMarkup(bytes, LongestTag))
        return Error{Error::What::EndlessMarkup};
    QXmlStreamReader reader(bytes);
    reader.setNamespaceProcessing(false);
    reader.setEntityExpansionLimit(EntityLimit(bytes, LongestEntities));
    QString text; // since the last tag
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::Characters) {
            text += reader.text();
        } else if (token == QXmlStreamReader::StartElement) {
            text.clear();
        } else if (token == QXmlStreamReader::EndElement) {
            const QString word = text.trimmed();
            text.clear();
            if (reader.qualifiedName() != u"ID")
                continue;
            if (word.startsWith(AbilityPrefix, Qt::CaseInsensitive))
                AddWord(WordKind::Ability, word);
            else if (word.startsWith(SpellPrefix, Qt::CaseInsensitive))
                AddWord(KindOfSpell(word), word);
        }
    }
    if (!reader.hasError())
        return {};
    Error error{Error::What::NotWellFormed, reader.errorString()};
    error.line = reader.lineNumber();
    error.column = reader.columnNumber() + 1;
    return error;
}

void Vocabulary::AddWord(WordKind kind, const QString& word) {
    const QString key = word.toUpper();
    if (Of(kind).known.contains(key))
        return;
    Of(kind).known.insert(key);
    Of(kind).all.append(word);
    Of(kind).nearest.clear();
}

bool Vocabulary::Knows(WordKind kind, const QString& word) const {
    return Of(kind).known.contains(word.toUpper());
}

QString Vocabulary::Nearest(WordKind kind, const QString& word) const {
    const std::lock_guard lock(mutex);
    auto& nearest = Of(kind).nearest;
    const auto known = nearest.constFind(word);
    return known != nearest.constEnd() ? *known
                                       : *nearest.insert(word, NearestTo(word, Of(kind).all));
}

} // namespace Hesperin
