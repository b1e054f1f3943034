#pragma once

namespace Hesperin {

/// Makes the standard streams carry the same bytes on every system, and lets a console that shows
/// them take them for UTF-8 until the process ends. A stream that the process was started without
/// fails at every use instead of becoming the next file that is opened.
void PrepareConsole();

/// Whether standard error is shown to a person as it is written.
bool ComplaintsGoToATerminal();

} // namespace Hesperin
