// What is wrong, or looks wrong, between the files of a mod.
#pragma once

#include "reports/check_file.h"
#include "reports/survey.h"

namespace Hesperin {

/// The words of the catalogue, of the game and of the mod. What of them can't be read is added to
/// `refused`.
void ReadVocabulary(const Mod& mod, Vocabulary& vocabulary, std::vector<RefusedPlace>& refused);

/// Adds the findings of each file and those between files to the survey, whose rows are complete,
/// in their order. `checked`: by row; `game`: the game's own files, null when they are not known.
void AddFindings(std::vector<CheckedFile> checked, const Mod& mod, const Mod* game, Survey& survey);

} // namespace Hesperin
