#pragma once

#include "engine/shared_state.h"
#include "platform/read_file.h"
#include "platform/xml_document.h"

namespace Hesperin {

/// Why a creature file was refused.
using OpenProblem = std::variant<FileObstacle, XmlProblem>;

/// The largest file that is read at all, in bytes.
inline constexpr qint64 LargestCreatureFile = 1 << 20;

/// The longest normalised text, in UTF-16 units: positions in it are held in 16 bits.
inline constexpr qsizetype LongestCreatureText = 32767;

/// The normalised text of a creature document given as the bytes of its file.
std::variant<QString, OpenProblem> NormaliseCreature(const QByteArray& bytes);

/// The normalised text of the creature file `path`.
std::variant<QString, OpenProblem> LoadCreatureDocument(const QString& path);

/// Why a document was refused, and where, in words of the current language.
QString OpenProblemReason(const SharedState& state, const OpenProblem& problem);

/// The problem in words of the current language: file, reason, and place where there is one.
QString OpenProblemText(const SharedState& state, const QString& path, const OpenProblem& problem);

} // namespace Hesperin
