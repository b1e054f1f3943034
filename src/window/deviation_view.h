#pragma once

#include "app/program.h"
#include "reports/survey_view.h"

#include <QWidget>

#include <functional>

namespace Hesperin {

/// The picture of deviation by tier: a click on a point chooses its creature, left and right go
/// from point to point, a double click or Enter opens the creature.
class DeviationView : public QWidget {
public:
    DeviationView(const Program& program, const SurveyView& shown, QWidget* parent);

    std::function<void(std::size_t row)> choose;
    std::function<void(std::size_t row)> open;

    /// The survey, its view or the window's creature is another.
    void LookAgain();

    /// Rings the point of that row, which need not have one.
    void Select(std::optional<std::size_t> row);

    /// Where the point of the row is; none when it has none.
    std::optional<QPointF> PlaceOf(std::size_t row) const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void LayOut();
    void PaintPanel(QPainter& painter, const DeviationPanel& panel) const;
    void PaintPoint(QPainter& painter, const DeviationPoint& point) const;
    std::vector<const DeviationPoint*> Points() const;
    const DeviationPoint* PointAt(const QPointF& place) const;
    void Step(int by);

    const Program& program;
    const SurveyView& view;
    DeviationPicture picture;
    std::optional<std::size_t> selected;
};

} // namespace Hesperin
