#include "window/outline.h"

#include "window/palette.h"

#include <QImage>
#include <QPaintDevice>

namespace Hesperin {

namespace {

constexpr int Radius = 4;
constexpr int Corner = Radius + 1; // side of the square that shows all of one

void DrawRounded(QPainter& painter, const QRect& place) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(Colours().Line));
    painter.drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), Radius, Radius);
    painter.restore();
}

/// An outline as small as can be.
QImage SmallOutline() {
    QImage picture(2 * Corner, 2 * Corner, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    DrawRounded(painter, picture.rect());
    return picture;
}

} // namespace

void DrawOutline(QPainter& painter, const QRect& place) {
    if (painter.device()->devicePixelRatioF() != 1) {
        DrawRounded(painter, place);
        return;
    }
    // Corners out of one picture and plain lines between them: smoothing a page's outlines along
    // their whole length took 3 % of all instructions of the start.
    static QImage outline;
    static QRgb colour = 0;
    if (std::exchange(colour, Colours().Line) != Colours().Line)
        outline = SmallOutline();
    const int right = place.right() - Radius;
    const int bottom = place.bottom() - Radius;
    for (const int x : {place.left(), right})
        for (const int y : {place.top(), bottom})
            painter.drawImage(x, y, outline, x == right ? Corner : 0, y == bottom ? Corner : 0,
                              Corner, Corner);
    const QRect across(place.left() + Corner, place.top(), place.width() - 2 * Corner, 1);
    const QRect down(place.left(), place.top() + Corner, 1, place.height() - 2 * Corner);
    for (const QRect& line : {across, across.translated(0, place.height() - 1), down,
                              down.translated(place.width() - 1, 0)})
        painter.fillRect(line, QColor(colour));
}

} // namespace Hesperin
