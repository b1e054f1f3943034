#include "creature_files/update_plan.h"

#include "creature_files/change.h"
#include "creature_files/file_tokens.h"
#include "creature_files/writer.h"
#include "text/decimal.h"

#include <QSet>

#include <algorithm>

namespace Hesperin {

namespace {

const QString Nothing = QStringLiteral("-"); // stands for what isn't there

/// Whether an update may write the element's content: it says something that the user enters.
bool IsEntered(Says says) {
    switch (says) {
    case Says::Number:
    case Says::Supply:
    case Says::ListNumber:
    case Says::ListEntry:
    case Says::ListFlag:
    case Says::Flyer:
    case Says::Size:
    case Says::Inferno:
    case Says::Growth:
        return true;
    default:
        return false;
    }
}

/// Numbers are compared as numbers.
bool Agree(const QString& inFile, const QString& inWindow) {
    const auto one = ReadWhole(inFile);
    const auto other = ReadWhole(inWindow);
    return one && other ? *one == *other : inFile == inWindow;
}

/// Whether the window shows what stands there, so that it isn't lost where it goes.
bool IsInWindow(const QString& name, const QString& value) {
    const auto knows = [&value](const auto& tokens) {
        return std::any_of(tokens.begin(), tokens.end(), [&value](const QString& token) {
            return value.compare(token, Qt::CaseInsensitive) == 0;
        });
    };
    if (name.startsWith(AbilityList + u'/'))
        return knows(AbilityTokens());
    if (name == SpellList + QLatin1String("/Item/Spell"))
        return knows(SpellTokens()) || knows(SpecabilityTokens());
    if (name.startsWith(SpellList + u'/'))
        return true;
    const Element* element = ElementAt(name);
    return element != nullptr && IsEntered(element->says);
}

class Planner {
public:
    Planner(const Creature& before, const Creature& after, EditedFile openedFile, EditedFile disk)
        : baseline(before), now(after),
          opened(std::move(openedFile)), plan{std::move(disk), {}, {}, before.Name != after.Name} {}

    Result<UpdatePlan> Run() {
        for (const Element& element : Elements)
            if (auto failure = Take(element))
                return *failure;
        return std::move(plan);
    }

private:
    Failure Take(const Element& element) {
        if (element.says == Says::Abilities)
            return TakeAbilities();
        if (element.says == Says::KnownSpells)
            return TakeSpells();
        if (element.says == Says::Charges)
            return TakeCharges(element);
        if (!IsEntered(element.says))
            return {};
        const QString before = ContentFor(element, baseline);
        const QString after = ContentFor(element, now);
        if (before == after)
            return NoteIfOther(element, after);
        if (TakesNumber(element) && !ReadWhole(after))
            return NoContentForNumber(after, PathOf(element));
        return Set(PathOf(element), after);
    }

    Failure NoteIfOther(const Element& element, const QString& inWindow) {
        const auto inFile = plan.file.Content(PathOf(element));
        if (inFile && *inFile && !Agree(**inFile, inWindow))
            plan.leftAlone.push_back({PathOf(element), **inFile, inWindow});
        return {};
    }

    Failure Set(const QString& element, const QString& content) {
        const auto wasOpened = opened.Content(element);
        const auto onDisk = plan.file.Content(element);
        if (!wasOpened || !onDisk)
            return wasOpened ? onDisk.Why() : wasOpened.Why();
        if (*onDisk != *wasOpened && *onDisk != content) {
            plan.conflicts.push_back(
                {element, wasOpened->value_or(Nothing), onDisk->value_or(Nothing), content});
            return {};
        }
        return plan.file.Set(element, content);
    }

    /// Items of abilities that were ticked or unticked. Those that stand in a file by other
    /// elements are never added.
    Failure TakeAbilities() {
        for (int i = 1; i <= Ability::Count; ++i) {
            if (baseline.Has(i) == now.Has(i))
                continue;
            const ListItem item{AbilityTokens()[static_cast<std::size_t>(i)]};
            if (!now.Has(i)) {
                if (auto failure = plan.file.RemoveItem(AbilityList, item))
                    return failure;
            } else if (IsWrittenAbility(i)) {
                if (auto failure = plan.file.AddItem(AbilityList, item))
                    return failure;
            }
        }
        return {};
    }

    Failure TakeSpells() {
        for (std::size_t j = 1; j <= SpecabilityCount; ++j)
            if (auto failure = TakeSkill(SpecabilityTokens()[j], baseline.Specabilities[j],
                                         now.Specabilities[j]))
                return failure;
        for (std::size_t i = 1; i <= SpellCount; ++i)
            if (auto failure = TakeSkill(SpellTokens()[i], baseline.Spells[i], now.Spells[i]))
                return failure;
        return {};
    }

    Failure TakeSkill(const QString& token, const Skill& before, const Skill& after) {
        if (before == after)
            return {};
        using Mastery = std::optional<QString>;
        const Mastery wanted =
            after.known ? Mastery(MasteryTokens().at(static_cast<std::size_t>(after.mastery)))
                        : std::nullopt;
        const auto inOpened = MasteryIn(opened, token);
        const auto onDisk = MasteryIn(plan.file, token);
        if (!inOpened || !onDisk)
            return inOpened ? onDisk.Why() : inOpened.Why();
        if (*onDisk != *inOpened && *onDisk != wanted) {
            plan.conflicts.push_back({SpellList, WithMastery(token, *inOpened),
                                      WithMastery(token, *onDisk), WithMastery(token, wanted)});
            return {};
        }
        return wanted ? plan.file.AddItem(SpellList, {token, *wanted})
                      : plan.file.RemoveItem(SpellList, {token});
    }

    static QString WithMastery(const QString& token, const std::optional<QString>& mastery) {
        return mastery ? token + u':' + *mastery : Nothing;
    }

    /// The mastery that a file has for the item; none when it lacks the item.
    static Result<std::optional<QString>> MasteryIn(const EditedFile& file, const QString& token) {
        const auto items = file.Items(SpellList);
        if (!items)
            return items.Why();
        for (const ListItem& item : *items)
            if (item.Is(token))
                return std::optional(item.mastery);
        return std::optional<QString>();
    }

    /// Follows the boxes where the file did so before.
    Failure TakeCharges(const Element& element) {
        const QString before = ContentFor(element, baseline);
        const QString after = ContentFor(element, now);
        if (before == after)
            return {};
        const auto inFile = opened.Content(PathOf(element));
        if (!inFile)
            return inFile.Why();
        return *inFile && Agree(**inFile, before) ? Set(PathOf(element), after) : Failure();
    }

    const Creature& baseline;
    const Creature& now;
    const EditedFile opened;
    UpdatePlan plan;
};

} // namespace

Result<UpdatePlan> PlanUpdate(const QByteArray& opened, const Creature& baseline,
                              const Creature& now, const QByteArray& onDisk) {
    auto openedFile = EditedFile::Open(opened);
    if (!openedFile)
        return openedFile.Why();
    auto disk = EditedFile::Open(onDisk);
    if (!disk)
        return disk.Why();
    return Planner(baseline, now, std::move(*openedFile), std::move(*disk)).Run();
}

QStringList LostBySave(const QByteArray& old, const QByteArray& composed) {
    if (old == composed)
        return {};
    const auto oldContents = EditedFile::ContentsOf(old);
    const auto newContents = EditedFile::ContentsOf(composed);
    if (!oldContents || !newContents)
        return {};
    const QSet<QString> kept(newContents->begin(), newContents->end());
    QStringList names;
    QList<int> counts;
    for (const QString& content : *oldContents) {
        const QString name = content.section(u'=', 0, 0);
        const QString value = content.section(u'=', 1);
        if (value.isEmpty() || kept.contains(content) || IsInWindow(name, value))
            continue;
        const QString top = name.startsWith(QLatin1String("Creature@"))
                                ? name
                                : name.section(u'/', 0, 0).section(u'@', 0, 0);
        if (const qsizetype known = names.indexOf(top); known >= 0) {
            ++counts[known];
        } else {
            names.append(top);
            counts.append(1);
        }
    }
    for (qsizetype i = 0; i < names.size(); ++i)
        if (counts[i] > 1)
            names[i] += QStringLiteral(" (%1)").arg(counts[i]);
    return names;
}

} // namespace Hesperin
