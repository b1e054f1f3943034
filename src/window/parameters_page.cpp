#include "window/parameters_page.h"

#include "window/field_view.h"
#include "window/fonts.h"
#include "window/frame_view.h"
#include "window/label_view.h"
#include "window/list_view.h"
#include "window/palette.h"
#include "window/units.h"

namespace Hesperin {

namespace {

constexpr Colour InFile = &ColourTable::InFile;
constexpr Colour Name = &ColourTable::Name;
constexpr Colour Entered = &ColourTable::Parameter;
constexpr Colour Text = &ColourTable::Text;

constexpr int FrameHeight = 795; // twips; the rows of frames stand 840 apart

struct FrameRow {
    Frame MainForm::*frame;
    int left;
    int top;
    int width;
    Colour colour;
    TextField MainForm::*field; ///< or
    ComboBox MainForm::*list;
};

// clang-format off
// In reading order, which is also the order of the tab key. Places in twips from the tab control's corner.
constexpr FrameRow FrameRowsOfPage[] = {
    //                            left   top  width  colour     field                    list
    {&MainForm::FrameNC,           240,  600, 2715,  Name,      &MainForm::txtNC,        nullptr},
    {&MainForm::FrameIDC,         3000,  600, 2715,  Name,      &MainForm::txtIDC,       nullptr},
    {&MainForm::FrameAttack,       240, 1440, 1395,  Entered,   &MainForm::txtAttack,    nullptr},
    {&MainForm::FrameDefence,     1680, 1440, 1275,  Entered,   &MainForm::txtDefence,   nullptr},
    {&MainForm::FrameDamage,      3000, 1440, 2715,  Entered,   nullptr,                 nullptr}, // two fields
    {&MainForm::FrameHealth,       240, 2280, 1275,  Entered,   &MainForm::txtHealth,    nullptr},
    {&MainForm::FrameTier,        1560, 2280, 1395,  Text,      nullptr,                 &MainForm::ComboTier},
    {&MainForm::FrameSpeed,       3000, 2280, 1155,  Text,      nullptr,                 &MainForm::ComboSpeed},
    {&MainForm::FrameInitiative,  4200, 2280, 1515,  Text,      nullptr,                 &MainForm::ComboInitiative},
    {&MainForm::FrameFaction,      240, 3120, 2715,  Text,      nullptr,                 &MainForm::ComboFaction},
    {&MainForm::FrameFME,         3000, 3120, 2715,  Text,      nullptr,                 &MainForm::ComboFME},
    {&MainForm::FrameUpgrade,      240, 3960, 2715,  Text,      nullptr,                 &MainForm::ComboUpgrade},
    {&MainForm::FrameSME,         3000, 3960, 2715,  Text,      nullptr,                 &MainForm::ComboSME},
    {&MainForm::FramePowerf,       240, 4800, 1165,  InFile,    &MainForm::txtPower,     nullptr},
    {&MainForm::FrameExpf,        1450, 4800, 1505,  InFile,    &MainForm::txtExp,       nullptr},
    {&MainForm::FrameShots,       3000, 4800, 1275,  Entered,   &MainForm::txtShots,     nullptr},
    {&MainForm::FrameRange,       4320, 4800, 1395,  Text,      nullptr,                 &MainForm::ComboRange},
    {&MainForm::FrameGrowthf,      240, 5640, 1165,  InFile,    &MainForm::txtGrowthf,   nullptr},
    {&MainForm::FrameCostf,       1450, 5640, 1505,  InFile,    &MainForm::txtGoldf,     nullptr},
    {&MainForm::FrameMana,        3000, 5640,  795,  Entered,   &MainForm::txtMana,      nullptr},
    {&MainForm::FrameTTC,         3840, 5640, 1875,  Text,      nullptr,                 &MainForm::ComboTTC},
    {&MainForm::FrameWoodf,        240, 6480, 1275,  InFile,    &MainForm::txtWoodf,     nullptr},
    {&MainForm::FrameOref,        1560, 6480, 1395,  InFile,    &MainForm::txtOref,      nullptr},
    {&MainForm::FrameMercuryf,     240, 7320, 1170,  InFile,    &MainForm::txtMercuryf,  nullptr},
    {&MainForm::FrameCrystalf,    1455, 7320, 1500,  InFile,    &MainForm::txtCrystalf,  nullptr},
    {&MainForm::FrameSulfurf,      240, 8160, 1170,  InFile,    &MainForm::txtSulfurf,   nullptr},
    {&MainForm::FrameGemf,        1455, 8160, 1500,  InFile,    &MainForm::txtGemf,      nullptr},
};
// clang-format on

constexpr int FieldTop = 20; // pixels, below the caption
constexpr int FieldHeight = 27;
constexpr int Margin = 7;

void BuildDamageFields(MainForm& form, FrameView& frame) {
    constexpr int labelWidth = 38;
    constexpr int gap = 3;
    const int half = (frame.width() - 2 * Margin) / 2;
    const auto pair = [&](Label& label, TextField& field, int left) {
        const QRect captionPlace(left, FieldTop, labelWidth, FieldHeight);
        const QRect fieldPlace(left + labelWidth + gap, FieldTop, half - labelWidth - gap,
                               FieldHeight);
        auto* caption = new LabelView(label, &frame, captionPlace, CaptionFont(), Text,
                                      Qt::AlignRight | Qt::AlignVCenter);
        caption->setBuddy(new FieldView(field, &frame, fieldPlace, FigureFont(), Entered));
    };
    pair(form.lblMin, form.txtMinDam, Margin);
    pair(form.lblMax, form.txtMaxDam, Margin + half);
}

} // namespace

void BuildParametersPage(MainForm& form, QWidget& page, int top) {
    for (const FrameRow& row : FrameRowsOfPage) {
        const QRect place =
            PixelRect(row.left, row.top, row.width, FrameHeight).translated(0, -top);
        auto* frame = new FrameView(form.*row.frame, &page, CaptionFont(), place);
        const QRect inside(Margin, FieldTop, place.width() - 2 * Margin, FieldHeight);
        if (row.field != nullptr) {
            const QFont font = row.field == &MainForm::txtNC ? NameFont() : FigureFont();
            new FieldView(form.*row.field, frame, inside, font, row.colour);
        } else if (row.list != nullptr) {
            new ListView(form.*row.list, frame, inside, HeadingFont());
        } else {
            BuildDamageFields(form, *frame);
        }
        frame->NameFields();
    }
}

} // namespace Hesperin
