#pragma once

#include <QColor>
#include <QPalette>

namespace Hesperin {

/// The window's own colours, the same under a light and a dark desktop theme.
struct ColourTable {
    QRgb Background;
    QRgb Field; ///< the background of what is written or chosen
    QRgb FieldOff;
    QRgb Line; ///< outlines of frames
    QRgb
        OutlineBase; ///< the style outlines fields, boxes, buttons and tabs in a darker shade of it
    QRgb Text;
    QRgb TextOff; ///< also the rings of the mastery selectors
    QRgb Accent;

    QRgb Parameter; ///< the creature's parameters
    QRgb InFile;    ///< the figures that go into the file
    QRgb Name;
    QRgb Rolvane;
    QRgb Hesperin;
    QRgb Average;
    QRgb Alternative;

    QRgb AboutBackground; ///< also of the title in the status window
    QRgb StatusTitle;
    QRgb StatusShadow; ///< of that title

    QRgb FocusLine; ///< around the focus mark of the style; transparent: none

    /// Parts of its own colour and of the background that a disabled text is mixed of.
    int OwnParts;
    int BackgroundParts;
};

/// Which of the colours.
using Colour = QRgb ColourTable::*;

extern const ColourTable GivenColours;

/// Darker shades of the same: texts stand out against their background by 4.5 to 1 at least,
/// outlines and marks by 3 to 1.
extern const ColourTable HighContrastColours;

/// The colours in use; the given ones at first.
const ColourTable& Colours();

/// Brings these colours into use; what is open follows.
void UseColours(const ColourTable& table);

/// The palette of the whole program.
QPalette ProgramPalette();

/// The palette of what the style draws an outline around, which it derives from the colour of the
/// window.
QPalette OutlinedPalette();

/// `palette` with text of one colour, softened where the control is disabled.
QPalette TextPalette(QPalette palette, Colour colour);

} // namespace Hesperin
