// A creature as lines of text, and changes to it by such words.
#pragma once

#include "catalogue/ability_catalogue.h"
#include "model/creature.h"

#include <QMap>
#include <QStringList>

namespace Hesperin {

inline const QStringList NumberNames = QString("Shots Mana Attack Defence Health MinDam MaxDam Power Exp Gold Growth "
                                               "Wood Ore Mercury Crystal Sulfur Gem")
                                           .split(' ');
inline const QStringList ListNames =
    QString("Upgrade Tier FirstElement SecondElement Speed Initiative Faction Alias Range Diapazon TimeToCommand")
        .split(' ');

inline QString NameOf(const char16_t* token) { return QString::fromUtf16(token); }
inline QString NameOf(const AbilityRow& ability) { return NameOf(ability.token); }

template <typename Table>
std::size_t IndexOf(const QString& name, const Table& tokens) {
    for (std::size_t i = 0; i < tokens.size(); ++i)
        if (name == NameOf(tokens[i]))
            return i;
    qFatal("no such token: %s", qUtf8Printable(name));
}

template <typename Skills, typename Tokens>
QString Known(const Skills& skills, const Tokens& tokens) {
    QStringList known;
    for (std::size_t i = 0; i < skills.size(); ++i)
        if (skills[i].known)
            known.append(NameOf(tokens[i]) + ' ' + QString::number(skills[i].mastery));
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
    for (std::size_t i = 1; i <= Ability::Count; ++i)
        if (creature.Abilities[i])
            abilities.append(NameOf(AbilityCatalogue[i]));
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
        creature.Abilities[IndexOf(parts[1], AbilityCatalogue)] = true;
    else if (parts[0] == "spell")
        creature.Spells[IndexOf(parts[1], SpellToken)] = {true, number(2)};
    else if (parts[0] == "specability")
        creature.Specabilities[IndexOf(parts[1], SpecabilityToken)] = {true, number(2)};
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
