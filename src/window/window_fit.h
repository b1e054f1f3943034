#pragma once

#include <QRect>

namespace Hesperin {

/// How the main window fits into the room that a screen leaves it. All in device-independent
/// pixels.
struct WindowFit {
    QSize window;  ///< without title bar and edges
    QRect tabs;    ///< the tab control, below the menu bar; a page higher or wider than it scrolls
    int pageWidth; ///< of the pages; their height is always the same
};

/// The height of a tab control that shows its pages whole.
int WholeTabsHeight();

/// On a screen with room enough everything has its given size. On a smaller one the empty strip
/// below the buttons goes first, then the pages scroll; the menu bar and the buttons stay whole.
/// `available` is the screen without its task bars, `menuHeight` the menu bar's, `barExtent` a
/// scroll bar's width.
WindowFit FitWindow(QSize available, int menuHeight, int barExtent);

} // namespace Hesperin
