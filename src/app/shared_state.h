// The one creature that the program works on: what is computed and remembered about it. The widths are part
// of the results.
#pragma once

#include "creature_files/reader.h"
#include "localisation/messages.h"
#include "model/evaluation.h"

namespace Hesperin {

struct SharedState {
    SharedState() { AbilityCurrentValue.fill(1.0F); }

    // Abilities.
    std::array<float, Ability::Count + 1> AbilityCurrentValue{}; ///< from 1; 1.0 while unticked
    std::int16_t SpellPoints1Count = 0;       ///< charge counter of the click rules
    std::int16_t SpecabilityFlag = FlagFalse; ///< sense of the last rule that wrote it

    float UpgradeFactor = PlainFactor; ///< follows ComboUpgrade at once

    // Of the last calculation. A run that a zero Power stopped leaves the figures and the advice as they
    // were.
    Parameters parameters; ///< as validated
    Exponents exponents;
    Powers powers;
    Figures figures;
    Advice advice;

    // The creature's identity and the values of the open file.
    QString CreatureName;
    bool CreatureFileLoaded = false;
    FileFigures file;

    /// The ability whose information window was asked for last, 1 to 174.
    std::int16_t AbilityInfoIndex = 0;

    // Language.
    std::uint8_t LanguageId = 1; ///< 1 English, 2 Russian, 3 French, 4 German
    Messages messages;           ///< in the current language
};

} // namespace Hesperin
