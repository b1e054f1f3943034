// A creature as lines of text, and changes to it by such words.
#pragma once

#include "catalogue/ability_catalogue.h"
#include "model/creature.h"

#include <QMap>
#include <QStringList>

#include <algorithm>

namespace Hesperin {

inline const QStringList NumberNames = QString("Shots Mana Attack Defence Health MinDam MaxDam Power Exp Gold Growth "
                                               "Wood Ore Mercury Crystal Sulfur Gem")
                                           .split(' ');
inline const QStringList ListNames =
    QString("Upgrade Tier FirstElement SecondElement Speed Initiative Faction Alias Range Diapazon TimeToCommand")
        .split(' ');

template <typename Table>
int IndexOf(const QString& token, const Table& tokens) {
    for (std::size_t i = 0; i < tokens.size(); ++i)
        if (tokens[i] != nullptr && token == QString::fromUtf16(tokens[i]))
            return static_cast<int>(i);
    qFatal("no such token: %s", qUtf8Printable(token));
}

inline std::array<const char16_t*, Ability::Count + 1> AbilityNames() {
    std::array<const char16_t*, Ability::Count + 1> names{};
    std::transform(AbilityCatalogue.begin() + 1, AbilityCatalogue.end(), names.begin() + 1,
                   [](const AbilityRow& row) { return row.token; });
    return names;
}

template <typename Skills, typename Tokens>
QString Known(const Skills& skills, const Tokens& tokens) {
    QStringList known;
    for (std::size_t i = 0; i < skills.size(); ++i)
        if (skills[i].known)
            known.append(QString("%1 %2").arg(QString::fromUtf16(tokens[i])).arg(skills[i].mastery));
    return known.join(", ");
}

/// All that a creature is, by its names.
inline QMap<QString, QString> InWords(const Creature& creature) {
    QMap<QString, QString> words{
        {"Name", creature.Name},
        {"Id", creature.Id},
        {"Charges", QString::number(creature.SpellPoints1Count)},
        {"Flag", QString::number(creature.SpecabilityFlag)},
        {"Spells", Known(creature.Spells, SpellToken)},
        {"Specabilities", Known(creature.Specabilities, SpecabilityToken)},
    };
    for (int i = 0; i < NumberNames.size(); ++i)
        words[NumberNames[i]] = creature.Numbers[static_cast<NumberField>(i)];
    for (int i = 0; i < ListNames.size(); ++i) {
        const Choice& choice = creature.Choices[static_cast<ListField>(i)];
        words[ListNames[i]] = QString("%1 [%2]").arg(choice.text).arg(choice.index);
    }
    QStringList abilities;
    for (int i = 1; i <= Ability::Count; ++i)
        if (creature.Has(i))
            abilities.append(QString::fromUtf16(AbilityNames()[static_cast<std::size_t>(i)]));
    words["Abilities"] = abilities.join(' ');
    return words;
}

/// Enters one thing: "Attack=7", "Speed=12", "Speed 3" for the entry at 3, "ability FLYER", "spell SLOW 4",
/// "specability DASH 0", "charges 5", "flag", "name Wyrm".
inline void Enter(Creature& creature, const QString& words) {
    const QString name = words.section('=', 0, 0);
    const QStringList parts = words.split(' ');
    const auto number = [&](int part) { return static_cast<std::int16_t>(parts.value(part).toInt()); };
    if (const auto field = NumberNames.indexOf(name); field >= 0)
        creature.Numbers[static_cast<NumberField>(field)] = words.section('=', 1);
    else if (const auto list = ListNames.indexOf(name); list >= 0)
        creature.Choices[static_cast<ListField>(list)].text = words.section('=', 1);
    else if (const auto chosen = ListNames.indexOf(parts[0]); chosen >= 0)
        creature.Choose(static_cast<ListField>(chosen), number(1));
    else if (parts[0] == "ability")
        creature.Set(IndexOf(parts[1], AbilityNames()), true);
    else if (parts[0] == "spell")
        creature.Spells[static_cast<std::size_t>(IndexOf(parts[1], SpellToken))] = {true, number(2)};
    else if (parts[0] == "specability")
        creature.Specabilities[static_cast<std::size_t>(IndexOf(parts[1], SpecabilityToken))] = {true, number(2)};
    else if (parts[0] == "charges")
        creature.SpellPoints1Count = number(1);
    else if (words == "flag")
        creature.SpecabilityFlag = FlagTrue;
    else if (parts[0] == "name")
        creature.Name = words.mid(5);
    else
        qFatal("not understood: %s", qUtf8Printable(words));
}

} // namespace Hesperin
