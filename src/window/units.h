#pragma once

#include <QRect>

namespace Hesperin {

/// 15 twips (1/1440 inch) are one device-independent pixel.
constexpr int Pixels(int twips) {
    return twips / 15;
}

/// A place on the window in twips, in device-independent pixels.
constexpr QRect PixelRect(int left, int top, int width, int height) {
    return {Pixels(left), Pixels(top), Pixels(width), Pixels(height)};
}

} // namespace Hesperin
