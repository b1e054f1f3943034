#pragma once

#include <QColor>
#include <QPalette>

namespace Hesperin {

// The window's own colours, the same under a light and a dark desktop theme.
namespace Colours {
inline constexpr QRgb Ground = 0xFFF1EEE6;
inline constexpr QRgb Field = 0xFFFFFDF8;
inline constexpr QRgb FieldOff = 0xFFE9E5DA;
inline constexpr QRgb Line = 0xFFBDB39B;
inline constexpr QRgb Text = 0xFF2B2620;
inline constexpr QRgb TextOff = 0xFF8F877A;
inline constexpr QRgb Accent = 0xFF33508F;

inline constexpr QRgb Parameter = 0xFF0000FF; ///< the creature's parameters
inline constexpr QRgb InFile = 0xFFC000C0;    ///< the figures that go into the file
inline constexpr QRgb Name = 0xFF004000;
inline constexpr QRgb Rolvane = 0xFFFF0000;
inline constexpr QRgb Hesperin = 0xFF00C0C0;
inline constexpr QRgb Average = 0xFF00C000;
inline constexpr QRgb Alternative = 0xFFFF8000;
inline constexpr QRgb AboutGround = 0xFF000080;
} // namespace Colours

/// The palette of the whole program.
QPalette ProgramPalette();

/// The same with text of one ink, softened where the control is disabled.
QPalette InkPalette(QRgb ink);

} // namespace Hesperin
