// The creature files used last, as the small file recent.ini in the user's settings folder keeps
// them: one path a line.
#pragma once

#include "system/program_places.h"

#include <QStringList>

namespace Hesperin {

inline constexpr qsizetype MostRecentFiles = 10;

/// The files used last, the last one first. Lines that can't be a path of this system, and all of a
/// file that is damaged, count for nothing.
QStringList RecentFiles(const ProgramPlaces& places);

/// Puts the file in front of what the list holds now. A list that can't be written stays as it is.
void AddRecentFile(const ProgramPlaces& places, const QString& path);

void RemoveRecentFile(const ProgramPlaces& places, const QString& path);

} // namespace Hesperin
