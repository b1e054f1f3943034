#include "window/button_row.h"

#include "window/button_view.h"
#include "window/fonts.h"
#include "window/units.h"

#include <algorithm>

namespace Hesperin {

namespace {

struct ButtonPlace {
    Button MainForm::*button;
    int left; // twips
    int width;
};

constexpr int GapAbove = 105;
constexpr int ButtonHeight = 435;
constexpr int RowWidth = 15360;
constexpr ButtonPlace ButtonRow[] = {
    {&MainForm::cmdCalc, 120, 1560},       {&MainForm::cmdRAP, 1800, 3960},
    {&MainForm::cmdRAA, 5880, 3720},       {&MainForm::cmdRAS, 9720, 3360},
    {&MainForm::cmdResetAll, 13200, 2130},
};

} // namespace

void BuildButtonRow(MainForm& form, QWidget& content, int top, int width) {
    const auto fitted = [width](int twips) {
        return twips * std::min(width, Pixels(RowWidth)) / Pixels(RowWidth);
    };
    for (const ButtonPlace& place : ButtonRow)
        new ButtonView(form.*place.button, &content, FigureFont(),
                       PixelRect(fitted(place.left), GapAbove, fitted(place.width), ButtonHeight)
                           .translated(0, top));
}

} // namespace Hesperin
