#include "app/creature_json.h"

#include <QJsonArray>

#include <limits>

namespace Hesperin {

namespace {

constexpr int LastMastery = 4;

/// Lists whose entries follow the language have as many as the list with the game's words.
int LastEntry(ListField list) {
    if (list == ListField::Faction)
        list = ListField::Alias;
    if (list == ListField::Range)
        list = ListField::Diapazon;
    return static_cast<int>(ListCatalogue[list].entries.size()) - 1;
}

template <std::size_t Count>
QJsonArray MasteriesOf(const std::array<Skill, Count>& skills) {
    QJsonArray pairs;
    for (std::size_t i = 1; i < Count; ++i)
        if (skills[i].known)
            pairs.append(QJsonArray{static_cast<int>(i), skills[i].mastery});
    return pairs;
}

/// Takes values out of JSON, and remembers whether all were there and possible.
class Values {
public:
    explicit Values(const QJsonObject& values) : json(values) {}

    QString Text(const char* name) { return Text(json.value(QLatin1String(name))); }
    QString Text(const QJsonValue& value) {
        good = good && value.isString();
        return value.toString();
    }
    std::int16_t Number(const QJsonValue& value, int lowest, int highest) {
        const double number = value.toDouble(std::numeric_limits<double>::max());
        const bool possible = number >= lowest && number <= highest;
        const auto whole = static_cast<std::int16_t>(possible ? number : lowest);
        good = good && possible && static_cast<double>(whole) >= number;
        return whole;
    }
    std::int16_t Number(const char* name) {
        return Number(json.value(QLatin1String(name)), std::numeric_limits<std::int16_t>::min(),
                      std::numeric_limits<std::int16_t>::max());
    }
    /// Of `size` values, if that isn't 0.
    QJsonArray Array(const char* name, std::size_t size = 0) {
        const QJsonValue value = json.value(QLatin1String(name));
        const QJsonArray array = value.toArray();
        good = good && value.isArray() &&
               (size == 0 || static_cast<std::size_t>(array.size()) == size);
        return good ? array : QJsonArray();
    }
    template <std::size_t Count>
    void Skills(const char* name, std::array<Skill, Count>& skills) {
        for (const auto pair : Array(name)) {
            const auto place = static_cast<std::size_t>(
                Number(pair.toArray().at(0), 1, static_cast<int>(Count) - 1));
            skills[place] = {true, Number(pair.toArray().at(1), 0, LastMastery)};
        }
    }
    bool Good() const { return good; }

private:
    QJsonObject json;
    bool good = true;
};

} // namespace

QJsonObject CreatureToJson(const Creature& creature) {
    QJsonArray numbers;
    for (const QString& number : creature.Numbers)
        numbers.append(number);
    QJsonArray choices;
    for (const Choice& choice : creature.Choices)
        choices.append(QJsonArray{choice.index, choice.text});
    QJsonArray abilities;
    for (int i = 1; i <= Ability::Count; ++i)
        if (creature.Has(i))
            abilities.append(i);
    return {
        {"Name", creature.Name},
        {"Id", creature.Id},
        {"Numbers", numbers},
        {"Choices", choices},
        {"Abilities", abilities},
        {"Spells", MasteriesOf(creature.Spells)},
        {"Specabilities", MasteriesOf(creature.Specabilities)},
        {"SpellPoints1Count", creature.SpellPoints1Count},
        {"SpecabilityFlag", creature.SpecabilityFlag},
    };
}

std::optional<Creature> CreatureFromJson(const QJsonObject& json) {
    Values values(json);
    Creature creature;
    creature.Name = values.Text("Name");
    creature.Id = values.Text("Id");
    qsizetype place = 0;
    const QJsonArray numbers = values.Array("Numbers", creature.Numbers.items.size());
    for (QString& number : creature.Numbers)
        number = values.Text(numbers.at(place++));
    const QJsonArray choices = values.Array("Choices", creature.Choices.items.size());
    for (std::size_t list = 0; list < creature.Choices.items.size(); ++list) {
        const QJsonArray pair = choices.at(static_cast<qsizetype>(list)).toArray();
        creature.Choices.items[list] = {
            values.Number(pair.at(0), -1, LastEntry(static_cast<ListField>(list))),
            values.Text(pair.at(1))};
    }
    for (const auto ability : values.Array("Abilities"))
        creature.Set(values.Number(ability, 1, Ability::Count), true);
    values.Skills("Spells", creature.Spells);
    values.Skills("Specabilities", creature.Specabilities);
    creature.SpellPoints1Count = values.Number("SpellPoints1Count");
    creature.SpecabilityFlag = values.Number("SpecabilityFlag");
    return values.Good() ? std::optional(creature) : std::nullopt;
}

} // namespace Hesperin
