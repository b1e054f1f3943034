#pragma once

#include "model/creature.h"

#include <QJsonObject>

#include <optional>

namespace Hesperin {

/// All of a creature.
QJsonObject CreatureToJson(const Creature& creature);

/// The creature again; none where a value is missing or is none that a creature can have.
std::optional<Creature> CreatureFromJson(const QJsonObject& json);

} // namespace Hesperin
