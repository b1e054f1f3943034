#pragma once

#include <QPainter>

namespace Hesperin {

/// Draws a line of one pixel, with round corners, along the inside of `place`.
void DrawOutline(QPainter& painter, const QRect& place);

} // namespace Hesperin
