// Creature documents for tests: a whole, valid one whose parts can be replaced.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <initializer_list>

namespace Hesperin {

class CreatureXml {
public:
    CreatureXml() {
        for (const auto& [name, content] : std::initializer_list<std::pair<const char*, const char*>>{
                 {"AttackSkill", "11"},
                 {"DefenceSkill", "12"},
                 {"Shots", "0"},
                 {"MinDamage", "5"},
                 {"MaxDamage", "8"},
                 {"Speed", "6"},
                 {"Initiative", "9"},
                 {"Flying", "false"},
                 {"Health", "40"},
                 {"KnownSpells", ""},
                 {"SpellPoints", "0"},
                 {"SpellPoints1", "0"},
                 {"Exp", "61"},
                 {"Power", "905"},
                 {"TimeToCommand", "15"},
                 {"CreatureTier", "4"},
                 {"Upgrade", "true"},
                 {"CreatureTown", "TOWN_ACADEMY"},
                 {"First", "ELEMENT_AIR"},
                 {"Second", "ELEMENT_WATER"},
                 {"WeeklyGrowth", "7"},
                 {"Wood", "1"},
                 {"Ore", "2"},
                 {"Mercury", "3"},
                 {"Crystal", "4"},
                 {"Sulfur", "5"},
                 {"Gem", "6"},
                 {"Gold", "420"},
                 {"CombatSize", "1"},
                 {"Range", "-1"},
                 {"Upgrades", ""},
                 {"Abilities", ""},
             })
            elements.append(Element{name, content});
    }

    /// Replaces the content of an element; markup in it stands as it is.
    CreatureXml& Set(const char* name, const QString& content) {
        for (Element& element : elements)
            if (element.name == name)
                element.content = content;
        return *this;
    }

    CreatureXml& Remove(const char* name) {
        elements.removeIf([name](const Element& element) { return element.name == name; });
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
        return Append("KnownSpells",
                      QString("<Item><Spell>SPELL_%1</Spell><Mastery>MASTERY_%2</Mastery></Item>").arg(token, mastery));
    }

    CreatureXml& Ability(const QString& token) { return Append("Abilities", "<Item>ABILITY_" + token + "</Item>"); }

    QByteArray Bytes() const {
        QString text = "<Creature>" + lead;
        for (const Element& element : elements)
            text += QString("<%1>%2</%1>\n").arg(element.name, element.content);
        if (!reference.isEmpty())
            text += "<MonsterShared href=\"" + reference + "\"/>";
        return (text + "</Creature>").toUtf8();
    }

private:
    struct Element {
        QString name;
        QString content;
    };

    CreatureXml& Append(const char* name, const QString& markup) {
        for (Element& element : elements)
            if (element.name == name)
                element.content += markup;
        return *this;
    }

    QList<Element> elements;
    QString lead;
    QString reference = "/Maps/Bog_wyrm.(AdvMapMonsterShared).xdb#xpointer(/AdvMapMonsterShared)";
};

} // namespace Hesperin
