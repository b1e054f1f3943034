#include "window/box_pages.h"

#include "catalogue/ability_catalogue.h"
#include "text/fill.h"
#include "text/numbers.h"
#include "window/box_view.h"
#include "window/selector_view.h"
#include "window/units.h"

#include <span>

namespace Hesperin {

namespace {

constexpr int RowsPerColumn = 35;
constexpr int FirstRowTop = 720; // twips, as all places here
constexpr int RowPitch = 240;
constexpr int BoxHeight = 240; // a little more than the box, so that no tail of a letter is cut off
constexpr int SelectorWidth = 1200;
constexpr int SelectorHeight = 210;

/// Left edge of a column's boxes and selectors, and the width of its boxes.
struct BoxColumn {
    int boxLeft;
    int boxWidth;
    int selectorLeft = 0;
};

constexpr BoxColumn AbilityColumns[] = {
    {90, 3480}, {3630, 3290}, {6980, 2920}, {9960, 2810}, {12830, 2420}};
constexpr BoxColumn SpellColumns[] = {{1380, 3300, 120}, {6030, 3030, 4755}, {10350, 4800, 9075}};
constexpr BoxColumn SpecabilityColumns[] = {{1380, 3400, 120}, {6120, 4800, 4875}};

/// Row and column of the `place`th box, from 0.
QRect PlaceOf(int place, int left, int width, int height, int top) {
    const int row = place % RowsPerColumn;
    return PixelRect(left, FirstRowTop + row * RowPitch, width, height).translated(0, -top);
}

const BoxColumn& ColumnOf(std::span<const BoxColumn> columns, int place) {
    return columns[static_cast<std::size_t>(place / RowsPerColumn)];
}

BoxView& AddBox(CheckBox& box, QWidget& page, std::span<const BoxColumn> columns, int place,
                int top) {
    const BoxColumn& column = ColumnOf(columns, place);
    const QRect rect = PlaceOf(place, column.boxLeft, column.boxWidth, BoxHeight, top);
    return *new BoxView(box, &page, rect.intersected(page.rect()));
}

/// Name and value of an ability that isn't ticked.
QString ValueOnceTicked(const Program& program, int index) {
    const QString& name = program.form.utbN(index).Text();
    return Fill(program.state.messages.MsgValueOnceTicked,
                {name.isEmpty() ? program.form.Abilities(index).Caption() : name,
                 FloatText(AbilityCatalogue[static_cast<std::size_t>(index)].value)});
}

void AddSelector(MultiOption& selector, const CheckBox& box, QWidget& page,
                 std::span<const BoxColumn> columns, int place, int top) {
    const BoxColumn& column = ColumnOf(columns, place);
    const QRect rect = PlaceOf(place, column.selectorLeft, SelectorWidth, SelectorHeight, top);
    new SelectorView(selector, &page, rect.translated(0, 1), box.Caption());
}

} // namespace

void BuildAbilitiesPage(Program& program, QWidget& page, int top) {
    for (CheckBox& box : program.form.Abilities) {
        const int index = box.ArrayIndex();
        AddBox(box, page, AbilityColumns, index - 1, top).SetUntickedToolTip([&program, index] {
            return ValueOnceTicked(program, index);
        });
    }
}

void BuildSpellsPage(MainForm& form, QWidget& page, int top) {
    for (CheckBox& box : form.Spells) {
        const int index = box.ArrayIndex();
        AddSelector(form.soq(index), box, page, SpellColumns, index - 1, top);
        AddBox(box, page, SpellColumns, index - 1, top);
    }
}

void BuildSpecabilitiesPage(MainForm& form, QWidget& page, int top) {
    constexpr int lastPlace = SpecabilityCount; // the inert one stands under all others
    for (CheckBox& box : form.Specabilities) {
        const int index = box.ArrayIndex();
        const int place = index == 0 ? lastPlace : index - 1;
        AddSelector(form.saz(index), box, page, SpecabilityColumns, place, top);
        AddBox(box, page, SpecabilityColumns, place, top);
    }
}

} // namespace Hesperin
