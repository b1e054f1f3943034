#include "window/tier_bands.h"

#include "text/numbers.h"
#include "window/palette.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Hesperin {

namespace {

constexpr int BandCount = 8;
constexpr int AboveBands = 20; // for the mark's Power
constexpr int BandHeight = 24;
constexpr int BelowBands = 16;  // for the Powers at the borders
constexpr int BesideStrip = 18; // half a number

} // namespace

TierBands::TierBands() {
    setObjectName(QStringLiteral("TierBands"));
    setFixedHeight(AboveBands + BandHeight + BelowBands);
    setMinimumWidth(320);
}

void TierBands::Show(std::optional<double> power, std::int16_t tier) {
    shownPower = power;
    ownTier = tier;
    update();
}

double TierBands::PlaceOf(double power) {
    const std::int16_t tier = AdviseTier(power);
    const PowerBand band = BandOf(tier);
    // The last band has no end: the mark comes ever nearer to its edge.
    const double within = std::isinf(band.highest)
                              ? 1 - band.lowest / std::max(power, band.lowest)
                              : (power - band.lowest + 0.5) / (band.highest - band.lowest + 1);
    return (tier - 1 + std::clamp(within, 0.0, 1.0)) / BandCount;
}

void TierBands::paintEvent(QPaintEvent*) {
    const ColourTable& colours = Colours();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double width = this->width() - 2.0 * BesideStrip;
    const auto across = [width](double part) { return BesideStrip + part * width; };
    QFont small = font();
    small.setPixelSize(11);
    QFont bold = font();
    bold.setBold(true);
    const std::int16_t advised = shownPower ? AdviseTier(*shownPower) : std::int16_t{0};
    for (std::int16_t tier = 1; tier <= BandCount; ++tier) {
        const double left = across((tier - 1) / double{BandCount});
        const QRectF band(left, AboveBands, width / BandCount, BandHeight);
        QColor fill(tier == advised ? colours.Accent : colours.Field);
        painter.setPen(QColor(colours.Line));
        painter.setBrush(fill);
        painter.drawRect(band);
        painter.setPen(QColor(tier == advised ? colours.Field : colours.Text));
        painter.setFont(tier == ownTier ? bold : font());
        painter.drawText(band, Qt::AlignCenter, QString::number(tier));
        if (tier == ownTier) // underlined: the tier that the creature has
            painter.drawLine(QPointF(band.center().x() - 6, band.bottom() - 3.5),
                             {band.center().x() + 6, band.bottom() - 3.5});
        painter.setPen(QColor(colours.Text));
        painter.setFont(small);
        painter.drawText(QRectF(left - 30, AboveBands + BandHeight, 60, BelowBands),
                         Qt::AlignCenter, WholeText(BandOf(tier).lowest));
    }
    if (!shownPower)
        return;
    const double x = across(PlaceOf(*shownPower));
    painter.setPen(QPen(QColor(colours.Text), 1));
    painter.setBrush(QColor(colours.Average));
    painter.drawPolygon(
        QPolygonF({{x, AboveBands + 7.0}, {x - 5, AboveBands - 3.0}, {x + 5, AboveBands - 3.0}}));
    painter.setFont(bold);
    const double left = std::clamp(x - 50, 0.0, this->width() - 100.0);
    const int side = left > x - 50   ? Qt::AlignLeft
                     : x - 50 > left ? Qt::AlignRight
                                     : Qt::AlignHCenter;
    painter.drawText(QRectF(left, 0, 100, AboveBands - 4), side | Qt::AlignVCenter,
                     WholeText(*shownPower));
}

} // namespace Hesperin
