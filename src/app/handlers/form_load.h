#pragma once

#include "app/program.h"

#include <optional>

namespace Hesperin {

/// What a start may ask for beyond the ordinary.
struct StartOptions {
    std::optional<std::uint8_t> languageId; ///< instead of reading (or creating) lang.ini
    bool loadAbilityTexts = true;           ///< false where nothing shows them, or not yet
};

/// The whole start-up of the program, before anything is shown: language, single-instance test,
/// catalogues, ability texts, lists and initial values. False when another instance runs: the user
/// has been told (critical: MsgSecondInstance, or MsgLockOfOtherHost where the lock may be one that
/// another computer left), nothing further was set up, and the process is to end.
bool Form_Load(Program& program, const StartOptions& options = {});

} // namespace Hesperin
