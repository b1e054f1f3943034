#include "window/standing_panel.h"

#include "reports/deviation_picture.h"
#include "window/fonts.h"
#include "window/frame_view.h"
#include "window/label_view.h"
#include "window/palette.h"
#include "window/units.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Hesperin {

namespace {

constexpr double DotRadius = 3;

/// The dots beside one another where there is room, in lanes above and below the middle where
/// there isn't.
class DotStripView : public View<QWidget, DotStrip> {
public:
    DotStripView(DotStrip& strip, QWidget* parent, const QRect& place) : View(strip, parent) {
        setGeometry(place);
        SyncAll();
    }

protected:
    void Sync() override { update(); }

    void paintEvent(QPaintEvent*) override {
        const DotStrip::Values& values = control.Shows();
        if (!values.mark)
            return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        double reach = 2 * OutlierPercent;
        for (const double dot : values.dots)
            reach = std::max(reach, std::abs(dot));
        reach = std::min(std::max(reach, std::abs(*values.mark)), 4 * OutlierPercent);
        const double middle = Middle();
        const auto across = [&](double value) {
            const double half = width() / 2.0 - 2 * DotRadius - 1;
            return width() / 2.0 + half * std::clamp(value / reach, -1.0, 1.0);
        };
        PaintScale(painter, across);
        painter.setPen(Qt::NoPen);
        QColor colour(Colours().Accent);
        colour.setAlpha(150);
        painter.setBrush(colour);
        std::vector<double> places;
        std::transform(values.dots.begin(), values.dots.end(), std::back_inserter(places), across);
        std::sort(places.begin(), places.end());
        std::vector<double> lanes(static_cast<std::size_t>(middle / (2 * DotRadius)) | 1U, -1e9);
        for (const double x : places) {
            auto lane = std::find_if(lanes.begin(), lanes.end(),
                                     [x](double last) { return x - last >= 2 * DotRadius; });
            if (lane == lanes.end()) // all are full: over the one that is free again first
                lane = std::min_element(lanes.begin(), lanes.end());
            *lane = x;
            const auto number = static_cast<int>(lane - lanes.begin());
            const int off = (number + 1) / 2 * (number % 2 == 0 ? 1 : -1);
            painter.drawEllipse(QPointF(x, middle + off * 2 * DotRadius), DotRadius, DotRadius);
        }
        painter.setPen(QPen(QColor(Colours().Text), 1.5));
        painter.setBrush(QColor(Colours().Average));
        painter.drawEllipse(QPointF(across(*values.mark), middle), 2 * DotRadius, 2 * DotRadius);
    }

private:
    double Middle() const { return (height() - BelowStrip) / 2.0; }

    template <typename Across>
    void PaintScale(QPainter& painter, Across across) const {
        QFont font = BoxFont();
        font.setPixelSize(10);
        painter.setFont(font);
        for (const double percent : {-OutlierPercent, 0.0, OutlierPercent}) {
            const double x = std::round(across(percent)) + 0.5;
            painter.setPen(QPen(QColor(percent == 0 ? Colours().TextOff : Colours().Line), 1,
                                percent == 0 ? Qt::SolidLine : Qt::DashLine));
            painter.drawLine(QPointF(x, 0), {x, height() - double{BelowStrip}});
            painter.setPen(QColor(Colours().Text));
            const QString text = DeviationText(percent, 0);
            painter.drawText(QRectF(x - 30, height() - BelowStrip, 60, BelowStrip), Qt::AlignCenter,
                             text);
        }
    }

    static constexpr int BelowStrip = 14; // for the percents
};

} // namespace

StandingPanel::~StandingPanel() {
    if (!built)
        form.FrameStanding.SetView(nullptr);
}

void StandingPanel::Changed(Control&, Property what) {
    if (what != Property::Visible)
        return;
    built = true;
    constexpr int margin = 10;
    const QRect place = PixelRect(5850, 4800, 6375, 2475).translated(0, -top);
    auto* frame = new FrameView(form.FrameStanding, &page, CaptionFont(), place);
    const int width = place.width() - 2 * margin;
    new LabelView(form.lblStandingDeviation, frame, {margin, 20, width, 26}, FigureFont(),
                  &ColourTable::Average, Qt::AlignCenter);
    new LabelView(form.lblStandingPlace, frame, {margin, 46, width, 20}, CaptionFont(),
                  &ColourTable::Text, Qt::AlignCenter);
    new DotStripView(form.StandingStrip, frame,
                     {margin, 70, width, place.height() - 70 - margin / 2});
    frame->show();
}

} // namespace Hesperin
