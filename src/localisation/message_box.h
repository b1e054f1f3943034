#pragma once

#include <QString>

#include <cstdint>

namespace Hesperin {

enum class BoxIcon : std::uint8_t { Critical, Information, Question };

/// A message box that the program shows.
struct ShownMessage {
    BoxIcon icon;
    QString title;
    QString text;
};

} // namespace Hesperin
