#pragma once

#include "localisation/message_box.h"

#include <QJsonArray>
#include <QJsonObject>

#include <optional>
#include <vector>

namespace Hesperin {

/// The object on one line.
QByteArray JsonLine(const QJsonObject& object);

/// The number, or null.
QJsonValue NumberOrNull(std::optional<double> number);

/// Message boxes, each with icon, title and text.
QJsonArray MessagesJson(const std::vector<ShownMessage>& messages);

} // namespace Hesperin
