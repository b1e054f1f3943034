#pragma once

#include "localisation/message_box.h"

#include <QJsonArray>
#include <QJsonObject>

#include <vector>

namespace Hesperin {

/// The object on one line.
QByteArray JsonLine(const QJsonObject& object);

/// Message boxes, each with icon, title and text.
QJsonArray MessagesJson(const std::vector<ShownMessage>& messages);

} // namespace Hesperin
