#pragma once

#include "model/advice.h"

#include <QWidget>

#include <optional>

namespace Hesperin {

/// The bands of average Power that advise the tiers, all as wide, with a mark where a creature
/// stands.
class TierBands : public QWidget {
public:
    TierBands();

    /// No Power: no mark.
    void Show(std::optional<double> power, std::int16_t tier);

    /// Where a Power lies along the strip, from 0 to 1.
    static double PlaceOf(double power);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::optional<double> shownPower;
    std::int16_t ownTier = 0;
};

} // namespace Hesperin
