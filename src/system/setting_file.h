// The small files that remember one setting each: a short line and nothing else.
#pragma once

#include "system/program_places.h"

#include <QByteArray>

#include <optional>

namespace Hesperin {

/// The first line, without its line end and at most 16 bytes of it, of the setting's file: that of
/// the user, or else that in the program's folder. Empty when it can't be read, none when there is
/// no such file.
std::optional<QByteArray> ReadSetting(const ProgramPlaces& places, const QString& name);

/// Writes `value` as the whole content of the setting's file. False when neither place can be
/// written.
bool SaveSetting(const ProgramPlaces& places, const QString& name, const QByteArray& value);

} // namespace Hesperin
