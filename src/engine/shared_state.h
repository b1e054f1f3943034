// The one creature that the program works on: what the engine reads, computes and remembers about
// it, as a flat set of fields. The widths are part of the results.
#pragma once

#include "engine/ability_index.h"

#include <QString>

#include <array>
#include <cstdint>

namespace Hesperin {

/// Truth value held in 16 bits.
inline constexpr std::int16_t FlagTrue = -1;
inline constexpr std::int16_t FlagFalse = 0;

/// Fixed-point number: counts ten-thousandths.
using FixedPoint = std::int64_t;

struct SharedState {
    SharedState() { AbilityCurrentValue.fill(1.0F); }

    // Creature parameters, as the last Calculate validated them.
    std::int16_t Attack = 0;     ///< 1 to 50
    std::int16_t Defence = 0;    ///< 1 to 50
    std::int16_t Health = 0;     ///< hit points, 1 to 400
    std::int16_t MinDam = 0;     ///< 1 to 90, never above MaxDam
    std::int16_t MaxDam = 0;     ///< 1 to 95
    std::int16_t Speed = 0;      ///< 1 to 9
    std::int16_t Initiative = 0; ///< 1 to 20
    std::int16_t Tier = 0;       ///< 1 to 8

    // Abilities.
    std::array<float, Ability::Count + 1> AbilityCurrentValue{}; ///< from 1; 1.0 while unticked
    float AbilityProduct = 1.0F;                                 ///< as of the last calculation
    std::int16_t SpellPoints1Count = 0;       ///< charge counter of the click rules
    std::int16_t SpecabilityFlag = FlagFalse; ///< sense of the last rule that wrote it

    /// 1.0 for a plain creature, 1.6 for an upgraded one.
    float UpgradeFactor = 1.0F;

    // Exponents of the first method's Power, as of the last calculation.
    FixedPoint ExponentOffence = 0;
    FixedPoint ExponentDefence = 0;
    FixedPoint ExponentSpeed = 0;
    FixedPoint ExponentInitiative = 0;

    // Results of the last calculation.
    double OffenceScore = 0; ///< attack-weighted mean damage
    double DefenceScore = 0; ///< defence-weighted health
    double PowerRolvane = 0;
    double PowerHesperin = 0;
    double PowerAverage = 0;
    std::int16_t ExpRolvane = 0;
    std::int16_t ExpAverage = 0;
    std::int16_t GrowthNumerator = 0;
    std::int16_t GrowthRolvane = 0;
    std::int16_t GrowthHesperin = 0;
    std::int16_t GrowthAverage = 0;
    std::int16_t GoldBaseNow = 0;
    double CostRolvane = 0;
    double CostHesperin = 0;
    double CostAverage = 0;
    std::int16_t TierReferencePower = 0;
    float PowerRatio = 0;
    std::int16_t AdvisedTier = 0;

    // The creature's identity and the values of the open file.
    QString CreatureName;
    bool CreatureFileLoaded = false;
    std::int16_t FilePower = 0;
    std::int16_t FileExperience = 0;
    std::int16_t FileGrowth = 0;
    std::int16_t FileGold = 0;

    // Positions that the scanning operations leave behind.
    std::int16_t TokenPosition = 0;
    std::int16_t SpecabilityTokenPosition = 0;

    /// The ability whose information window was asked for last, 1 to 174.
    std::int16_t AbilityInfoIndex = 0;

    // Language.
    std::uint8_t LanguageId = 1; ///< 1 English, 2 Russian, 3 French, 4 German
    QString LanguageCode;        ///< "EN", "RU", "FR", "DE"

    // File names, without extension, of the ability looked up last.
    QString AbilityNameFile;
    QString AbilityDescFile;

    // Message strings in the language of the moment.
    QString WarningTitle;
    QString MsgSecondInstance;
    QString MsgQuitQuestion;
    QString MsgQuitTitle;
    QString MsgValueFor;
    QString MsgOutOfRange;
    QString MsgCannotBeLess;
    QString MsgZeroPower;
    QString MsgIncreaseTier;
    QString MsgLowerTier;
    QString MsgTierTo;
    QString MsgAbilityValue;
    QString MsgAverageValue;
    QString SumCreature;
    QString SumPower;
    QString SumExperience;
    QString SumGrowth;
    QString SumGold;
    QString MsgEnterName;
    QString DefaultFileName;
    QString MsgWhatIs;
    QString MsgAppDescription;
    QString MsgFileRefused;
    QString MsgFileMissing;
    QString MsgFolderMissing;
    QString MsgIsFolder;
    QString MsgNotAFile;
    QString MsgNotAllowed;
    QString MsgFileInUse;
    QString MsgDiskFull;
    QString MsgDiskReadOnly;
    QString MsgNameTooLong;
    QString MsgFileTooLarge;
    QString MsgSystemSays;
    QString MsgNotWellFormed;
    QString MsgEndsEarly;
    QString MsgWrongRoot;
    QString MsgTextTooLong;
    QString MsgAtLine;
    QString MsgAtLineIn;
    QString MsgElementsMissing;
    QString MsgNumbersLimited;
    QString MsgSaveFailed;
    QString MsgNameChanges;
    QString MsgSavedBut;
    QString MsgOtherNamesKeepOld;
    QString MsgOwnerNotKept;
    QString MsgMayNotLast;
    QString MsgNoCalculator;
    QString MsgLockOfOtherHost;
    QString MsgYes;
    QString MsgNo;

    // How a result is named for those who cannot see where it stands: what it is (%1), the figure.
    QString FigureByRolvane;
    QString FigureByHesperin;
    QString FigureOnAverage;
    QString FigureByQuintarell;
    QString FigureByBravik;
};

} // namespace Hesperin
