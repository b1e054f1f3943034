#pragma once

#include <QFont>
#include <QString>

namespace Hesperin {

// The fonts of the window. Sizes are in device-independent pixels, so that nothing depends on
// the resolution that a desktop reports: 11.25 point are 15 pixels, 14.25 point 19.

QFont CaptionFont(); ///< frames and small labels
QFont HeadingFont(); ///< panels, their headings, lists
QFont FigureFont();  ///< fields, results, buttons
QFont NameFont();    ///< the creature's name
QFont BoxFont();     ///< check boxes
QFont ReadingFont(); ///< the ability information window
QFont FileFont();    ///< the text of a creature file, fixed width

/// `font`, or the largest smaller size of it in which `text` is at most `width` pixels wide.
QFont FittingFont(const QFont& font, const QString& text, int width);

} // namespace Hesperin
