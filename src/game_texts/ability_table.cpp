#include "game_texts/ability_table.h"

#include "catalogue/ability_catalogue.h"
#include "xml/xml_limits.h"

#include <QXmlStreamReader>

namespace Hesperin {

namespace {

/// No tag and no document type of such a table comes near it, in characters.
constexpr qsizetype LongestMarkup = 1 << 15;

/// Of all entities together, in characters.
constexpr qsizetype LongestExpansion = 1 << 20;

/// No path of the game comes near it, in characters.
constexpr qsizetype LongestReference = 1 << 10;

/// The place that a reference in the table leads to: from the data's root, or from the table's
/// folder; what stands behind # is a place in that file.
QStringList LevelsOf(QString reference) {
    if (reference.size() > LongestReference)
        return {};
    reference = reference.section(u'#', 0, 0).trimmed().replace(u'\\', u'/');
    QStringList levels;
    if (!reference.startsWith(u'/'))
        levels = AbilityTableLevels().mid(0, 2);
    for (const QString& level : reference.split(u'/', Qt::SkipEmptyParts)) {
        if (level == QLatin1String("."))
            continue;
        if (level != QLatin1String(".."))
            levels.append(level);
        else if (!levels.isEmpty())
            levels.removeLast();
        else
            return {}; // outside
    }
    return levels;
}

/// An item of the table, as far as it has been read.
struct Item {
    QString token;
    AbilityReferences texts;

    void Take(QStringView element, const QString& reference) {
        const bool isDescription = element.contains(u"Desc", Qt::CaseInsensitive);
        if (reference.isEmpty() ||
            !(isDescription || element.contains(u"Name", Qt::CaseInsensitive)))
            return;
        QStringList& levels = isDescription ? texts.description : texts.name;
        if (levels.isEmpty())
            levels = LevelsOf(reference);
    }

    void TakeId(const QString& text) {
        const QString id = text.trimmed().toUpper();
        if (token.isEmpty() && id.startsWith(AbilityPrefix))
            token = id.mid(AbilityPrefix.size());
    }
};

} // namespace

QStringList AbilityTableLevels() {
    return {QStringLiteral("GameMechanics"), QStringLiteral("RefTables"),
            QStringLiteral("CombatAbilities.xdb")};
}

Result<AbilityTable> ReadAbilityTable(const QByteArray& bytes) {
    if (HasEndlessMarkup(bytes, LongestMarkup))
        return Error{Error::What::EndlessMarkup};
    QXmlStreamReader reader(bytes);
    reader.setNamespaceProcessing(false);
    reader.setEntityExpansionLimit(EntityLimit(bytes, LongestExpansion));
    AbilityTable table;
    Item item;
    QString text;  // since the last tag
    int items = 0; // open ones: lists inside an ability have items as well
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::Characters) {
            text += reader.text();
            continue;
        }
        const QStringView element = reader.qualifiedName();
        if (token == QXmlStreamReader::StartElement) {
            if (element == u"Item" && ++items == 1)
                item = {};
            item.Take(element, reader.attributes().value(QLatin1String("href")).toString());
        } else if (token == QXmlStreamReader::EndElement) {
            if (element == u"ID")
                item.TakeId(text);
            if (element == u"Item" && --items == 0 && !item.token.isEmpty() &&
                !table.contains(item.token))
                table.insert(item.token, item.texts);
        } else {
            continue;
        }
        text.clear();
    }
    if (!reader.hasError())
        return table;
    Error error{Error::What::NotWellFormed, reader.errorString()};
    error.line = reader.lineNumber();
    error.column = reader.columnNumber() + 1;
    return error;
}

} // namespace Hesperin
