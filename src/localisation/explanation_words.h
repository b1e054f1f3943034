// The words in which a figure is explained and a value is looked for.
#pragma once

#include "catalogue/parameters.h"
#include "localisation/messages.h"
#include "model/validation.h"

#include <QLatin1String>

namespace Hesperin {

/// The chapters of an explanation, in their order.
enum class Chapter : std::uint8_t {
    Corrected,
    Entered,
    Abilities,
    RolvanePower,
    HesperinPower,
    Experience,
    Growth,
    Gold,
    Averages,
    AdvisedTier,
    OneMore,
    Count
};

/// What is told of a step: %1 is the tier.
struct StepWords {
    const char* id; ///< of the term
    Chapter chapter;
    Texts words;
};

/// The step of that id; null for one that isn't told by itself.
const StepWords* WordsOfStep(const QString& id);

enum class Phrase : std::uint8_t {
    Head,         ///< the creature (%1) and its tier (%2)
    HeadUpgraded, ///< the same of an upgraded one
    Upgraded,
    Shooter,
    Yes,
    No,
    AllowedFrom, ///< the lowest value allowed (%1)
    Allowed,     ///< from %1 to %2
    NotAboveMax, ///< of the minimum damage
    NoAbility,   ///< none is ticked
    ExponentsOfShooter,
    ExponentsOfOthers,
    OneInsteadOfLess, ///< the odd bands of the rounding
    ZeroInsteadOfOne,
    LimitedTo16Bits,
    NoPower,     ///< the first method's is 0, and nothing follows from it
    GrowthFixed, ///< at tier %1
    Band,
    BandFromTo,      ///< %1 to %2, the Power (%3) so many percent (%4) of the way
    BandFrom,        ///< %1, for the highest tier
    ToNextTier,      ///< tier %1
    MoreNeeded,      ///< Power, %1
    Highest,         ///< %1 is the end of the range
    Average,         ///< Power of creature %1 is %2
    NoAverage,       ///< the same where there is none
    InFiguresOfMod,  ///< behind one of the two
    ComputedFigures, ///< behind what is wanted of a tier
    WantedPower,
    WantedTier,        ///< %1, from %2 to %3
    WantedHighestTier, ///< %1, from %2
    Exactly,           ///< with the values %1
    Nearest,           ///< value %1 gives %2, value %3 gives %4
    AtMost,            ///< value %1 gives %2
    AtLeast,           ///< the same
    Nothing,           ///< gives any Power
    Count
};

// `languageId`: 1 to 4; English where the language has none.

QString PhraseIn(std::uint8_t languageId, Phrase phrase);
QString ChapterIn(std::uint8_t languageId, Chapter chapter);
QString StepIn(std::uint8_t languageId, const StepWords& step);

/// "Min damage".
QString ParameterIn(std::uint8_t languageId, Parameter parameter);
QString CorrectedIn(std::uint8_t languageId, Correction::What what);

} // namespace Hesperin
