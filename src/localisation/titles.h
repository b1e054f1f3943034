// The titles that the main window can bear beside the program's own
// (VersionRecord::TitleAndVersion).
#pragma once

#include "localisation/messages.h"
#include "model/formulas.h"

namespace Hesperin {

/// The figures of an open file alone, the same words in every language.
QString FileTitle(const QString& name, const FileFigures& file);

/// Each figure of the open file beside the computed average in braces. The averages are formed anew
/// from the results of the two methods, so that Experience follows the current Power and tier.
QString SummaryTitle(const Messages& messages, const QString& name, const FileFigures& file,
                     std::int16_t tier, const Powers& powers, const Figures& figures);

/// A summary title made with the words `from` in the words `to`; any other title as it is.
QString SummaryTitleIn(const Messages& to, const Messages& from, QString title);

} // namespace Hesperin
