#pragma once

#include "text/error.h"

namespace Hesperin {

/// The error behind the system's number of it.
Error ErrorOf(int systemCode);

/// The error behind a failed operation of the toolkit, from the words that the system gave for it.
Error ErrorOf(const QString& systemWords);

} // namespace Hesperin
