#pragma once

#include <cstdint>

namespace Hesperin {

/// The values of SharedState::LanguageId that have a name in code.
enum Language : std::uint8_t { English = 1, Russian = 2 };

} // namespace Hesperin
