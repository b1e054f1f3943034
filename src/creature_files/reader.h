#pragma once

#include "catalogue/results.h"
#include "creature_files/scanning.h"
#include "model/creature.h"

#include <QStringList>

#include <vector>

namespace Hesperin {

/// A number outside 16 bits, and the nearest end of the range that was taken for it.
struct LimitedNumber {
    QString element;
    QString text;
    std::int16_t value;
};

/// What a creature file says.
struct ReadCreature {
    Creature creature;
    std::optional<QString> name; ///< none when the reference that bears it is missing
    FileFigures figures;
    QStringList missing; ///< names of elements, in the order of reading
    std::vector<LimitedNumber> limited;
    QString spellExcerpt; ///< the part of the file that the last spell's mastery was looked for in
    QString specabilityExcerpt; ///< the same for the last special ability

    QString ShownName() const { return name.value_or(DefaultCreatureName.toString()); }
};

/// A figure that the program computes too, and where a creature file has it.
struct FigureInFile {
    Figure figure;
    NumberField field;
    QStringView element;
    std::int16_t FileFigures::*value;
};

inline constexpr FigureInFile FiguresInFile[] = {
    {Figure::Power, NumberField::Power, u"Power", &FileFigures::FilePower},
    {Figure::Experience, NumberField::Exp, u"Exp", &FileFigures::FileExperience},
    {Figure::Growth, NumberField::Growth, u"WeeklyGrowth", &FileFigures::FileGrowth},
    {Figure::Cost, NumberField::Gold, u"Gold", &FileFigures::FileGold},
};

/// Reads the normalised text of a creature file over `cleared`, a creature without any tick: what
/// the file lacks keeps its state. Ticks follow the same rules as a user's: linked boxes, one
/// nature, and the charge counter counts on from that of `cleared`.
ReadCreature ReadCreatureText(const QString& text, const Creature& cleared);

} // namespace Hesperin
