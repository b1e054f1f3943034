#include "reports/find_abilities.h"

#include "catalogue/ability_catalogue.h"
#include "text/numbers.h"

#include <algorithm>

namespace Hesperin {

namespace {

QString Folded(const QString& text) {
    return text.toCaseFolded().replace(QChar(0x0451), QChar(0x0435)); // ё, е
}

const AbilityRow& AbilityRowOf(int ability) {
    return AbilityCatalogue[static_cast<std::size_t>(ability)];
}

QString TokenOf(int ability) {
    return QString::fromUtf16(AbilityRowOf(ability).token);
}

} // namespace

std::vector<int> FindAbilities(const QString& text, const AllAbilityWords& words) {
    const QStringList wanted = Folded(text.simplified()).split(u' ', Qt::SkipEmptyParts);
    std::vector<int> found;
    for (int ability = 1; ability <= Ability::Count; ++ability) {
        const AbilityWords& known = words[static_cast<std::size_t>(ability)];
        const QString searched =
            Folded(TokenOf(ability) + u'\n' + known.name + u'\n' + known.description);
        if (std::all_of(wanted.begin(), wanted.end(),
                        [&](const QString& word) { return searched.contains(word); }))
            found.push_back(ability);
    }
    return found;
}

QString FoundTable(const std::vector<int>& found, const AllAbilityWords& words) {
    qsizetype width = 0;
    for (const int ability : found)
        width = std::max(width, TokenOf(ability).size());
    QStringList lines;
    for (const int ability : found) {
        const QString name = words[static_cast<std::size_t>(ability)].name.simplified();
        const QString value = FloatText(AbilityRowOf(ability).value);
        lines.append(
            QString::number(ability).rightJustified(3) + QLatin1String("  ") +
            TokenOf(ability).leftJustified(width) + QLatin1String("  ") +
            (name.isEmpty() ? value : value.leftJustified(5) + QLatin1String("  ") + name));
    }
    return lines.join(u'\n');
}

QJsonObject FoundJson(int ability, const AbilityWords& words) {
    return {{"index", ability},
            {"token", TokenOf(ability)},
            {"value", TextToNumber(FloatText(AbilityRowOf(ability).value))},
            {"name", words.name},
            {"description", words.description}};
}

} // namespace Hesperin
