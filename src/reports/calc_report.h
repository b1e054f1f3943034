#pragma once

#include "creature_files/reader.h"
#include "localisation/message_box.h"
#include "model/evaluation.h"
#include "text/error.h"

#include <QJsonObject>

#include <vector>

namespace Hesperin {

/// What opening a creature file gives.
struct CalcReport {
    QString file;
    Failure refusal; ///< why it can't be opened; nothing else is there then but the message
    QString name;
    ReadCreature read;
    Evaluation evaluation;
    QString title;
    std::vector<ShownMessage> messages; ///< as the window would show them
};

/// Reads and evaluates the creature file `path`. Messages are in the language of that number.
CalcReport CalculateFile(const QString& path, std::uint8_t languageId);

/// The report as one object.
QJsonObject CalcJson(const CalcReport& report);

/// The report as a table for a person.
QString CalcTable(const CalcReport& report);

} // namespace Hesperin
