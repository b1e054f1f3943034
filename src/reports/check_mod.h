// What is wrong, or looks wrong, between the files of a mod.
#pragma once

#include "reports/check_file.h"
#include "reports/survey.h"
#include "system/path_lookup.h"

#include <map>
#include <memory>

namespace Hesperin {

/// The check of a mod, which goes along with its survey.
class ModCheck {
public:
    /// `gamePaths`: the game's own folders and archives; none: references aren't checked.
    ModCheck(const Mod& mod, const QStringList& gamePaths, const std::function<bool()>& goOn);

    /// Checks the file `at` of the mod. May be called by several threads, for one file each.
    void LookAt(std::size_t at, const QByteArray& bytes, const Result<QString>& normalised);

    /// Adds the findings, in their order, to the survey of all files that were looked at, and
    /// those of the game's places that were refused. Its rows have their deviations.
    void AddTo(Survey& survey);

private:
    void ReadWords(const Mod& place);
    bool LeadsSomewhere(const SurveyRow& row, const QString& reference);
    bool IsOnDisk(const QString& place, const QString& reference);

    const Mod& mod;
    std::unique_ptr<Mod> game; ///< null: none is known
    Vocabulary vocabulary;
    std::vector<RefusedPlace> refused;
    std::map<QString, PathLookup> above;               ///< folders around files, by their paths
    std::vector<std::unique_ptr<CheckedFile>> checked; ///< by file; null: not looked at
};

} // namespace Hesperin
