#pragma once

#include <QFont>
#include <QString>

namespace Hesperin {

// The type faces of the window. Sizes are in device-independent pixels, so that nothing depends on
// the resolution that a desktop reports: 11.25 point are 15 pixels, 14.25 point 19.

QFont CaptionFace(); ///< frames and small labels
QFont HeadingFace(); ///< panels, their headings, lists
QFont FigureFace();  ///< fields, results, buttons
QFont NameFace();    ///< the creature's name
QFont BoxFace();     ///< check boxes
QFont ReadingFace(); ///< the ability information window
QFont FileFace();    ///< the text of a creature file, fixed width

/// `face`, or the largest smaller size of it in which `text` is at most `width` pixels wide.
QFont FittingFace(const QFont& face, const QString& text, int width);

} // namespace Hesperin
