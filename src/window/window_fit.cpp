#include "window/window_fit.h"

#include "window/button_row.h"
#include "window/units.h"

#include <algorithm>

namespace Hesperin {

namespace {

constexpr QSize WholeWindow(Pixels(15450), Pixels(10560));
constexpr QRect WholeTabs = PixelRect(30, 0, 15315, 9255);
constexpr int NarrowestPage = Pixels(15090); // to the right edge of the panel of results
constexpr int TitleBar = 37;                 // the highest in use, with the window's edges

} // namespace

int WholeTabsHeight() {
    return WholeTabs.height();
}

WindowFit FitWindow(QSize available, int menuHeight, int barExtent) {
    const QSize room = available - QSize(0, TitleBar);
    const bool narrow = room.width() < WholeTabs.x() + NarrowestPage;
    const int tabsHeight = std::min(WholeTabs.height() + (narrow ? barExtent : 0),
                                    room.height() - menuHeight - ButtonRowHeight);
    const int bar = tabsHeight < WholeTabs.height() ? barExtent : 0; // stands beside the pages
    const QSize window = (WholeWindow + QSize(bar, 0)).boundedTo(room);
    const int tabsWidth = std::min(WholeTabs.width() + bar, window.width() - WholeTabs.x());
    return {window, QRect(WholeTabs.x(), WholeTabs.y(), tabsWidth, tabsHeight),
            std::clamp(tabsWidth - bar, NarrowestPage, WholeTabs.width())};
}

} // namespace Hesperin
