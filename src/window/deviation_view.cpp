#include "window/deviation_view.h"

#include "app/standing.h"
#include "text/fill.h"
#include "window/fonts.h"
#include "window/palette.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace Hesperin {

namespace {

QFont PictureFont(bool bold) {
    QFont font = BoxFont();
    font.setPixelSize(static_cast<int>(DeviationFontSize));
    font.setBold(bold);
    return font;
}

/// What lies below shines through.
QColor Faded(QRgb colour) {
    QColor faded(colour);
    faded.setAlpha(150);
    return faded;
}

} // namespace

DeviationView::DeviationView(const Program& owner, const SurveyView& shown, QWidget* parent)
    : QWidget(parent), program(owner), view(shown) {
    setObjectName(QStringLiteral("SurveyPicture"));
    setFocusPolicy(Qt::StrongFocus);
}

void DeviationView::LookAgain() {
    LayOut();
    update();
}

void DeviationView::Select(std::optional<std::size_t> row) {
    if (std::exchange(selected, row) != row)
        update();
}

std::optional<QPointF> DeviationView::PlaceOf(std::size_t row) const {
    for (const DeviationPoint* point : Points())
        if (point->row == row)
            return QPointF(point->x, point->y);
    return std::nullopt;
}

void DeviationView::LayOut() {
    const auto lookAt = [this](int height) {
        return LayOutDeviations(view.Whole(), width(), height, view.Shown(),
                                RowOfShownFile(program));
    };
    constexpr int lowest = 130;
    const int room = parentWidget() == nullptr ? height() : parentWidget()->height();
    picture = lookAt(std::max(room, lowest));
    setMinimumHeight(static_cast<int>(std::ceil(std::max<double>(lowest, picture.height))));
}

void DeviationView::resizeEvent(QResizeEvent*) {
    LayOut();
}

std::vector<const DeviationPoint*> DeviationView::Points() const {
    std::vector<const DeviationPoint*> points;
    for (const DeviationPanel& panel : picture.panels)
        for (const DeviationPoint& point : panel.points)
            points.push_back(&point);
    return points;
}

const DeviationPoint* DeviationView::PointAt(const QPointF& place) const {
    constexpr double reach = 5; // pixels beside a point that still are meant for it
    const DeviationPoint* nearest = nullptr;
    double least = std::pow(picture.radius + reach, 2);
    for (const DeviationPoint* point : Points()) {
        const QPointF off = place - QPointF(point->x, point->y);
        if (const double distance = QPointF::dotProduct(off, off); distance <= least) {
            least = distance;
            nearest = point;
        }
    }
    return nearest;
}

void DeviationView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const DeviationPanel& panel : picture.panels)
        PaintPanel(painter, panel);
    if (hasFocus()) {
        painter.setPen(QPen(QColor(Colours().Accent), 1, Qt::DotLine));
        painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    }
}

void DeviationView::PaintPanel(QPainter& painter, const DeviationPanel& panel) const {
    const ColourTable& colours = Colours();
    const Messages& messages = program.state.messages;
    painter.setPen(QColor(colours.Line));
    painter.setBrush(QColor(colours.Field));
    painter.drawRoundedRect(panel.place, 4, 4);
    painter.setFont(PictureFont(false));
    for (const DeviationLine& line : panel.lines) {
        const bool middle = line.deviation == 0;
        painter.setPen(QPen(QColor(middle ? colours.TextOff : colours.Line), 1,
                            middle ? Qt::SolidLine : Qt::DashLine));
        painter.drawLine(QPointF(panel.place.left(), line.y), {panel.place.right(), line.y});
        painter.setPen(QColor(colours.Text));
        painter.drawText(line.labelPlace, Qt::AlignRight | Qt::AlignVCenter | Qt::TextDontClip,
                         line.labelPlace.isEmpty() ? QString() : DeviationText(line.deviation, 0));
    }
    const auto write = [&](const QRectF& place, const QString& words) {
        painter.drawText(place, Qt::AlignCenter, words);
    };
    painter.setPen(QColor(colours.Text));
    if (panel.scale)
        write(panel.scalePlace,
              Fill(messages.PictureScale, {QString::number(*panel.scale, 'f', 2)}));
    write(panel.countPlace, Fill(messages.PictureCount, {QString::number(panel.count)}));
    painter.setFont(PictureFont(true));
    write(panel.titlePlace, Fill(messages.PictureTier, {QString::number(panel.tier)}));
    painter.setFont(PictureFont(false));
    for (const bool above : {false, true}) // what matters lies on the others
        for (const DeviationPoint& point : panel.points)
            if ((point.current || point.row == selected) == above)
                PaintPoint(painter, point);
}

void DeviationView::PaintPoint(QPainter& painter, const DeviationPoint& point) const {
    const ColourTable& colours = Colours();
    const QRgb colour = point.current   ? colours.Average
                        : point.outlier ? colours.Rolvane
                                        : colours.Accent;
    const QPointF middle(point.x, point.y);
    const double radius = picture.radius + (point.current ? 1.5 : 0);
    painter.setPen(QColor(point.current ? colours.Text : colour));
    painter.setBrush(point.current ? QColor(colour) : Faded(colour));
    painter.drawEllipse(middle, radius, radius);
    if (point.row == selected) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(QColor(colours.Text), 2));
        painter.drawEllipse(middle, radius + 3, radius + 3);
    }
    painter.setPen(QColor(colours.Text));
    painter.drawText(point.labelPlace, Qt::AlignCenter | Qt::TextDontClip, point.label);
}

bool DeviationView::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const DeviationPoint* point = PointAt(help->pos());
        QToolTip::showText(help->globalPos(),
                           point == nullptr
                               ? QString()
                               : ShownName(view.Whole().rows[point->row]).toHtmlEscaped() +
                                     QLatin1String(": ") + DeviationText(point->deviation),
                           this);
        return true;
    }
    return QWidget::event(event);
}

void DeviationView::mousePressEvent(QMouseEvent* event) {
    if (const DeviationPoint* point = PointAt(event->position()))
        choose(point->row);
}

void DeviationView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (const DeviationPoint* point = PointAt(event->position()))
        open(point->row);
}

void DeviationView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Right || event->key() == Qt::Key_Left)
        Step(event->key() == Qt::Key_Right ? 1 : -1);
    else if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && selected)
        open(*selected);
    else
        QWidget::keyPressEvent(event);
}

/// To the next point or the one before, by panel and from high to low.
void DeviationView::Step(int by) {
    const auto points = Points();
    if (points.empty())
        return;
    const auto current = std::find_if(points.begin(), points.end(),
                                      [this](const auto* point) { return point->row == selected; });
    const auto last = static_cast<std::ptrdiff_t>(points.size()) - 1;
    const std::ptrdiff_t place =
        current == points.end()
            ? 0
            : std::clamp<std::ptrdiff_t>(current - points.begin() + by, 0, last);
    choose(points[static_cast<std::size_t>(place)]->row);
}

} // namespace Hesperin
