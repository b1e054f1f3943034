#pragma once

namespace Hesperin {

/// Makes the standard streams carry the same bytes on every system, and lets a console that shows
/// them take them for UTF-8 until the process ends.
void PrepareConsole();

} // namespace Hesperin
