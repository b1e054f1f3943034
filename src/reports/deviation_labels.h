// Names beside the points of the picture of deviation.
#pragma once

#include "reports/deviation_picture.h"

namespace Hesperin {

/// Names the current creature and the outliers of a panel, the gravest first; one for which there
/// is no free place stays without a name.
void PlaceLabels(DeviationPanel& panel, double radius, const Survey& survey);

} // namespace Hesperin
