// Creature documents for tests: a whole, valid one whose parts can be replaced.
#pragma once

#include <QByteArray>
#include <QStringList>

namespace Hesperin {

class CreatureXml {
public:
    CreatureXml() {
        const QString basis =
            "AttackSkill=11 DefenceSkill=12 Shots=0 MinDamage=5 MaxDamage=8 Speed=6 Initiative=9 Flying=false "
            "Health=40 "
            "KnownSpells= SpellPoints=0 SpellPoints1=0 Exp=61 Power=905 TimeToCommand=15 CreatureTier=4 Upgrade=true "
            "CreatureTown=TOWN_ACADEMY First=ELEMENT_AIR Second=ELEMENT_WATER WeeklyGrowth=7 Wood=1 Ore=2 Mercury=3 "
            "Crystal=4 Sulfur=5 Gem=6 Gold=420 CombatSize=1 Range=-1 Upgrades= Abilities=";
        for (const QString& element : basis.split(' '))
            elements.append({element.section('=', 0, 0), element.section('=', 1)});
    }

    /// Replaces the content of an element; markup in it stands as it is.
    CreatureXml& Set(const QString& name, const QString& content) {
        Content(name) = content;
        return *this;
    }

    CreatureXml& Remove(const QString& name) {
        elements.removeIf([&](const auto& element) { return element.first == name; });
        return *this;
    }

    /// The reference to the shared map object; empty: the document has none.
    CreatureXml& Reference(const QString& href) {
        reference = href;
        return *this;
    }

    /// Markup in front of all elements.
    CreatureXml& Lead(const QString& markup) {
        lead = markup;
        return *this;
    }

    CreatureXml& Spell(const QString& token, const QString& mastery) {
        Content("KnownSpells") +=
            QString("<Item><Spell>SPELL_%1</Spell><Mastery>MASTERY_%2</Mastery></Item>").arg(token, mastery);
        return *this;
    }

    CreatureXml& Ability(const QString& token) {
        Content("Abilities") += "<Item>ABILITY_" + token + "</Item>";
        return *this;
    }

    QByteArray Bytes() const {
        QString text = "<Creature>" + lead;
        for (const auto& [name, content] : elements)
            text += QString("<%1>%2</%1>\n").arg(name, content);
        if (!reference.isEmpty())
            text += "<MonsterShared href=\"" + reference + "\"/>";
        return (text + "</Creature>").toUtf8();
    }

private:
    QString& Content(const QString& name) {
        for (auto& element : elements)
            if (element.first == name)
                return element.second;
        qFatal("no such element: %s", qUtf8Printable(name));
    }

    QList<std::pair<QString, QString>> elements;
    QString lead;
    QString reference = "/Maps/Bog_wyrm.(AdvMapMonsterShared).xdb#xpointer(/AdvMapMonsterShared)";
};

} // namespace Hesperin
