#pragma once

#include "creature_files/creature_folder.h"
#include "localisation/messages.h"

namespace Hesperin {

/// Results, as UTF-8 on standard output, with a line feed behind them.
void PrintLine(const QString& line);
void PrintLine(const QByteArray& utf8);

/// The bytes as they are.
void PrintBytes(const QByteArray& bytes);

/// Complaints, the same way on standard error.
void Complain(const QString& line);
void Complain(const std::vector<RefusedPlace>& places, const Messages& messages);

/// In English: of what was refused of the paths, or that there is no creature file at all.
void Complain(const FoundFiles& found, const QStringList& paths);

/// Complains of how the command `name` was called; gives the exit code for that.
int Misused(const char* name, const QString& reason);

/// Writes out what is still held back. False when any result could not be written.
bool FlushOutput();

} // namespace Hesperin
