#include "window/results_panels.h"

#include "form/form_lists.h"
#include "text/fill.h"
#include "window/fonts.h"
#include "window/frame_view.h"
#include "window/label_view.h"
#include "window/palette.h"
#include "window/units.h"

#include <QEvent>

namespace Hesperin {

namespace {

/// How the results of a method look, and how one is named for those who can't see where it stands.
struct MethodLook {
    Colour colour;
    QString Messages::*figureName;
};

constexpr EnumArray<Method, MethodLook> MethodLooks{{{
    {&ColourTable::Rolvane, &Messages::FigureByRolvane},
    {&ColourTable::Hesperin, &Messages::FigureByHesperin},
    {&ColourTable::Average, &Messages::FigureOnAverage},
}}};

constexpr MethodLook AlternativeLooks[] = {
    {&ColourTable::Alternative, &Messages::FigureByQuintarell},
    {&ColourTable::Alternative, &Messages::FigureByBravik},
};

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
                    FigureFont(), textColour, Qt::AlignCenter),
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

    /// Before the frame that holds it, which is disabled, can keep it from its user.
    bool event(QEvent* event) override {
        if (event->type() != QEvent::MouseButtonDblClick)
            return LabelView::event(event);
        control.DoubleClick();
        return true;
    }

private:
    const QString& nameText; ///< in the current language
};

/// One panel, into which results are put in groups of four: a heading, and Power, Experience,
/// Growth and Cost in a square below it.
class Panel {
    Q_DISABLE_COPY(Panel) // the page keeps its view
public:
    Panel(Program& owner, Frame& frame, QWidget& page, const QRect& place)
        : program(owner), view(new FrameView(frame, &page, HeadingFont(), place)) {}

    void Add(const ResultPlace& place, const MethodLook& look) {
        MainForm& form = program.form;
        const int top = FirstGroupTop + (count / GroupSize) * GroupPitch;
        const int inGroup = count++ % GroupSize;
        if (inGroup == 0)
            new LabelView(form.*place.heading, view,
                          {PanelMargin, top, view->width() - 2 * PanelMargin, HeadingHeight},
                          HeadingFont(), look.colour, Qt::AlignCenter);
        const int width = (view->width() - 2 * PanelMargin - FrameGap) / 2;
        const QRect rect(PanelMargin + (inGroup % 2) * (width + FrameGap),
                         top + HeadingHeight + (inGroup / 2) * (FigureHeight + FrameGap), width,
                         FigureHeight);
        auto* frame = new FrameView(form.*place.frame, view, CaptionFont(), rect);
        new FigureView(form.*place.label, *frame, rect.size(), look.colour,
                       program.state.messages.*look.figureName);
    } // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): the panel owns what is in it

private:
    static constexpr int GroupSize = static_cast<int>(Figure::Count);

    Program& program;
    FrameView* view; // the page owns it
    int count = 0;
};

} // namespace

void BuildResultPanels(Program& program, QWidget& page, int top) {
    const QRect mainPlace = PixelRect(12360, 480, 2730, 5330).translated(0, -top);
    const QRect alternativePlace = PixelRect(9480, 480, 2730, 3625).translated(0, -top);
    Panel mainMethod(program, program.form.frmMM, page, mainPlace);
    for (const ResultRow& row : ResultRows)
        mainMethod.Add(row.place, MethodLooks[row.method]);
    Panel alternative(program, program.form.frmAM, page, alternativePlace);
    for (std::size_t i = 0; i < std::size(AlternativeResults); ++i)
        alternative.Add(AlternativeResults[i],
                        AlternativeLooks[i / static_cast<std::size_t>(Figure::Count)]);
}

} // namespace Hesperin
