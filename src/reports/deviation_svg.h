#pragma once

#include "reports/deviation_picture.h"

namespace Hesperin {

/// The picture as an element of an HTML page, in whose style its classes have their colours:
/// `kind` is the element's own class. Each point tells name and deviation when it is pointed at.
QByteArray DeviationSvg(const DeviationPicture& picture, const Survey& survey,
                        const QByteArray& kind, const Messages& messages);

} // namespace Hesperin
