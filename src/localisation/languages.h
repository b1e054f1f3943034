#pragma once

#include <cstdint>

namespace Hesperin {

/// The values of LanguageId that have a name in code.
enum Language : std::uint8_t { English = 1, Russian = 2 };

} // namespace Hesperin
