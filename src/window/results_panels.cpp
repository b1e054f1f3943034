#include "window/results_panels.h"

#include "localisation/string_tables.h"
#include "window/faces.h"
#include "window/frame_view.h"
#include "window/label_view.h"
#include "window/palette.h"
#include "window/units.h"

#include <span>

namespace Hesperin {

namespace {

/// A heading and four frames in a square: Power, Experience, Growth, Cost.
struct Group {
    Label MainForm::*heading;
    Frame MainForm::*frames[4];
    Label MainForm::*figures[4];
    Colour colour;
    QString SharedState::*figureName;
};

// clang-format off
constexpr Group MainMethod[] = {
    {&MainForm::lblValues,
     {&MainForm::FramePower,      &MainForm::FrameExperience,  &MainForm::FrameGrowth,       &MainForm::FrameCost},
     {&MainForm::lblPowerRolvane, &MainForm::lblExpRolvane,    &MainForm::lblGrowthRolvane,  &MainForm::lblCostRolvane},
     &ColourTable::Rolvane, &SharedState::FigureByRolvane},
    {&MainForm::lblValuesX,
     {&MainForm::FramePowerX,      &MainForm::FrameExperienceX, &MainForm::FrameGrowthX,      &MainForm::FrameCostX},
     {&MainForm::lblPowerHesperin, &MainForm::lblExpHesperin,   &MainForm::lblGrowthHesperin, &MainForm::lblCostHesperin},
     &ColourTable::Hesperin, &SharedState::FigureByHesperin},
    {&MainForm::lblValuesA,
     {&MainForm::FramePowerA,     &MainForm::FrameExperienceA, &MainForm::FrameGrowthA,      &MainForm::FrameCostA},
     {&MainForm::lblPowerAverage, &MainForm::lblExpAverage,    &MainForm::lblGrowthAverage,  &MainForm::lblCostAverage},
     &ColourTable::Average, &SharedState::FigureOnAverage},
};

constexpr Group AlternativeMethod[] = {
    {&MainForm::lblValuesS,
     {&MainForm::FramePowerS, &MainForm::FrameExperienceS, &MainForm::FrameGrowthS, &MainForm::FrameCostS},
     {&MainForm::lblPowerS,   &MainForm::lblExpS,          &MainForm::lblGrowthS,   &MainForm::lblCostS},
     &ColourTable::Alternative, &SharedState::FigureByQuintarell},
    {&MainForm::lblValuesD,
     {&MainForm::FramePowerD, &MainForm::FrameExperienceD, &MainForm::FrameGrowthD, &MainForm::FrameCostD},
     {&MainForm::lblPowerD,   &MainForm::lblExpD,          &MainForm::lblGrowthD,   &MainForm::lblCostD},
     &ColourTable::Alternative, &SharedState::FigureByBravik},
};
// clang-format on

// Pixels inside a panel.
constexpr int FirstGroupTop = 20;
constexpr int HeadingHeight = 20;
constexpr int FigureHeight = 41;
constexpr int FrameGap = 2;
constexpr int GroupPitch = HeadingHeight + 2 * FigureHeight + FrameGap + 5;
constexpr int PanelMargin = 7;

/// A result; its accessible name tells what it is, by which method, and the figure.
class FigureView : public LabelView, public NamedInFrame {
public:
    FigureView(Label& figure, FrameView& frame, const QSize& frameSize, Colour textColour,
               const QString& figureName)
        : LabelView(figure, &frame, {4, 15, frameSize.width() - 8, frameSize.height() - 17},
                    FigureFace(), textColour, Qt::AlignCenter),
          nameText(figureName) {
        frame.NameFields();
    }

    QString NameIn(const QString& caption) const override {
        return Fill(nameText, {caption, control.Caption()}).trimmed();
    }

protected:
    void Sync() override {
        LabelView::Sync();
        FrameView::NameFieldsAround(*this);
    }

private:
    const QString& nameText; ///< in the current language
};

void BuildGroup(Program& program, FrameView& panel, const Group& group, int top) {
    MainForm& form = program.form;
    new LabelView(form.*group.heading, &panel,
                  {PanelMargin, top, panel.width() - 2 * PanelMargin, HeadingHeight}, HeadingFace(),
                  group.colour, Qt::AlignCenter);
    const int width = (panel.width() - 2 * PanelMargin - FrameGap) / 2;
    for (int place = 0; place < 4; ++place) {
        const QRect rect(PanelMargin + (place % 2) * (width + FrameGap),
                         top + HeadingHeight + (place / 2) * (FigureHeight + FrameGap), width,
                         FigureHeight);
        auto* frame = new FrameView(form.*group.frames[place], &panel, CaptionFace(), rect);
        new FigureView(form.*group.figures[place], *frame, rect.size(), group.colour,
                       program.state.*group.figureName);
    }
}

void BuildPanel(Program& program, Frame& frame, QWidget& page, const QRect& place,
                std::span<const Group> groups) {
    auto* panel = new FrameView(frame, &page, HeadingFace(), place);
    int top = FirstGroupTop;
    for (const Group& group : groups) {
        BuildGroup(program, *panel, group, top);
        top += GroupPitch;
    }
} // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): the page owns the panel

} // namespace

void BuildResultPanels(Program& program, QWidget& page, int top) {
    const QRect mainPlace = PixelRect(12360, 480, 2730, 5330).translated(0, -top);
    const QRect alternativePlace = PixelRect(9480, 480, 2730, 3625).translated(0, -top);
    BuildPanel(program, program.form.frmMM, page, mainPlace, MainMethod);
    BuildPanel(program, program.form.frmAM, page, alternativePlace, AlternativeMethod);
}

} // namespace Hesperin
