// What the window holds at one moment, as a value: what a step of the user changes and an undo sets
// back. Texts that stay the same from one moment to the next share their memory.
#pragma once

#include "app/shared_state.h"
#include "form/form_lists.h"

namespace Hesperin {

struct Program;

/// All that is entered, shown and computed, but what belongs to the file and what follows the
/// language.
struct WindowState {
    static constexpr std::size_t SwitchCount = 9;

    Creature creature;
    QString creatureName;
    std::uint8_t languageId = 1; ///< of title and tool tip
    QString title;
    QString calculateToolTip;
    std::array<QString, std::size(ResultRows)> results;
    std::array<bool, SwitchCount> switches{}; ///< whether controls are enabled and pages on
    float upgradeFactor = PlainFactor;
    std::vector<Correction> corrections;
    Parameters parameters;
    Exponents exponents;
    Powers powers;
    Figures figures;
    Advice advice;

    /// Whether the user sees no difference, whatever has been stored behind it.
    bool LooksLike(const WindowState& other) const;
};

WindowState TakeWindowState(Program& program);

/// Sets it back without running a rule, the words in the current language.
void SetWindowState(Program& program, const WindowState& state);

/// What belongs to the file that the window shows: where it lies, what an update goes out from, its
/// page, its figures.
struct FilePart {
    QString dialogName;
    std::optional<SharedState::Baseline> baseline;
    bool loaded = false;
    FileFigures figures;
    bool pageOn = false;
    QString pageCaption;
    QString text;
    QString spellExcerpt;
    QString specabilityExcerpt;

    bool operator==(const FilePart&) const = default;
};

/// The same, small, for the time in which another creature is shown.
struct PackedFilePart {
    FilePart rest;
    QByteArray bytes; ///< of the file, packed
    QByteArray text;
};

PackedFilePart Pack(FilePart part);
FilePart Unpack(const PackedFilePart& packed);

FilePart TakeFilePart(const Program& program);
void SetFilePart(Program& program, const FilePart& part);

} // namespace Hesperin
