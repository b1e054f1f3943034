// What the running program remembers: the creature's computed values, its file, the language. The
// widths are part of the results.
#pragma once

#include "localisation/messages.h"
#include "model/evaluation.h"

#include <QStringList>

namespace Hesperin {

struct SharedState {
    SharedState() { AbilityCurrentValue.fill(1.0F); }

    // Abilities.
    std::array<float, Ability::Count + 1> AbilityCurrentValue{}; ///< from 1; 1.0 while unticked
    std::int16_t SpellPoints1Count = 0; ///< charge counter of the box rules
    std::int16_t SpecabilityFlag =
        FlagFalse; ///< -1 after a tick, 0 after an untick; see box_rules.h

    float UpgradeFactor = PlainFactor; ///< follows ComboUpgrade at once

    // Of the last calculation. A run that a zero Power stopped leaves the figures and the advice as
    // they were.
    Parameters parameters; ///< as validated
    Exponents exponents;
    Powers powers;
    Figures figures;
    Advice advice;
    std::vector<Correction> corrections; ///< that validation made

    /// The result of which the user last asked how it was computed.
    ResultKey explained{Method::Average, Figure::Power};

    // The creature's identity and the values of the open file.
    QString CreatureName;
    bool CreatureFileLoaded = false;
    FileFigures file;

    /// The file that was opened or saved last: what an update in place starts from. None after New
    /// and Reset all.
    struct Baseline {
        QString path;
        QByteArray bytes;  ///< of the file
        Creature creature; ///< as the window then showed it

        bool operator==(const Baseline&) const = default;
    };
    std::optional<Baseline> baseline;

    /// The creature that the window shows, by number: New, Reset all and Open begin another one.
    /// What belongs to a file belongs to it.
    std::uint32_t creatureNumber = 0;
    std::uint32_t creaturesBegun = 0;
    void BeginCreature() { creatureNumber = ++creaturesBegun; }

    /// Files of which this run has kept a copy before it replaced them.
    QStringList backedUp;

    /// The ability whose information window was asked for last, 1 to 174.
    std::int16_t AbilityInfoIndex = 0;

    // Language.
    std::uint8_t LanguageId = 1; ///< 1 English, 2 Russian, 3 French, 4 German
    Messages messages;           ///< in the current language
};

} // namespace Hesperin
