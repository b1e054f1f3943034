#include "window/outline.h"

#include <QHash>
#include <QImage>
#include <QPaintDevice>

namespace Hesperin {

namespace {

void DrawRounded(QPainter& painter, const QRect& place, const QColor& colour, int radius) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colour);
    painter.drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter.restore();
}

/// An outline as small as can be: its corners are squares of radius + 1.
const QImage& SmallOutline(const QColor& colour, int radius) {
    static QHash<std::pair<QRgb, int>, QImage> drawn;
    QImage& picture = drawn[{colour.rgba(), radius}];
    if (picture.isNull()) {
        const int side = 2 * (radius + 1);
        picture = QImage(side, side, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        DrawRounded(painter, picture.rect(), colour, radius);
    }
    return picture;
}

} // namespace

void DrawOutline(QPainter& painter, const QRect& place, const QColor& colour, int radius) {
    if (painter.device()->devicePixelRatioF() != 1) {
        DrawRounded(painter, place, colour, radius);
        return;
    }
    // Corners out of one picture and plain lines between them: smoothing the outlines of the first
    // page along their whole length took 6 % of all instructions of the start.
    const QImage& outline = SmallOutline(colour, radius);
    const int corner = radius + 1;
    const int right = place.right() - radius;
    const int bottom = place.bottom() - radius;
    for (const int x : {place.left(), right})
        for (const int y : {place.top(), bottom})
            painter.drawImage(x, y, outline, x == right ? corner : 0, y == bottom ? corner : 0,
                              corner, corner);
    const QRect across(place.left() + corner, place.top(), place.width() - 2 * corner, 1);
    const QRect down(place.left(), place.top() + corner, 1, place.height() - 2 * corner);
    for (const QRect& line : {across, across.translated(0, place.height() - 1), down,
                              down.translated(place.width() - 1, 0)})
        painter.fillRect(line, colour);
}

} // namespace Hesperin
