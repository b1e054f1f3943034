#include "model/creature.h"

#include "catalogue/links.h"

namespace Hesperin {

void Creature::Choose(ListField list, std::int16_t index) {
    const auto entries = ListCatalogue[list].entries;
    Choices[list] = {index, entries.empty() ? QString()
                                            : entries[static_cast<std::size_t>(index)].toString()};
}

Creature EmptyCreature() {
    Creature creature;
    for (QString& number : creature.Numbers)
        number = QStringLiteral("0");
    for (std::size_t list = 0; list < ListCatalogue.items.size(); ++list)
        creature.Choose(static_cast<ListField>(list), ListCatalogue.items[list].initial);
    return creature;
}

std::int16_t ChargesOf(const Creature& creature) {
    int charges = 0;
    for (const Link& link : Links)
        charges += creature.Has(link.ability) ? 2 : 0;
    for (const int ability : OneSidedAbilities)
        charges += creature.Has(ability) ? 1 : 0;
    for (const int specability : OneSidedSpecabilities)
        charges += creature.Specabilities[static_cast<std::size_t>(specability)].known ? 1 : 0;
    return static_cast<std::int16_t>(charges);
}

} // namespace Hesperin
