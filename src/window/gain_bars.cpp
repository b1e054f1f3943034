#include "window/gain_bars.h"

#include "window/palette.h"

#include <QPainter>

#include <algorithm>

namespace Hesperin {

namespace {

constexpr int GainHeight = 19;
constexpr int GainGap = 8;

} // namespace

GainBars::GainBars() {
    setObjectName(QStringLiteral("ExplanationGains"));
    setMinimumWidth(230);
    setFixedHeight(GainHeight * static_cast<int>(PowerParameters));
}

void GainBars::Show(std::vector<ExplainedStep> steps) {
    gains = std::move(steps);
    QStringList lines;
    for (const ExplainedStep& gain : gains)
        lines.append(gain.what + u' ' + gain.value);
    setAccessibleDescription(lines.join(QLatin1String(", ")));
    update();
}

void GainBars::paintEvent(QPaintEvent*) {
    const ColourTable& colours = Colours();
    QPainter painter(this);
    const QFontMetrics metrics(font());
    int names = 0;
    int numbers = 0;
    for (const ExplainedStep& gain : gains) {
        names = std::max(names, metrics.horizontalAdvance(gain.what));
        if (gain.share > 0)
            numbers = std::max(numbers, metrics.horizontalAdvance(gain.value));
    }
    const int numbersRight = names + GainGap + numbers;
    const double room = std::max(0, width() - numbersRight - GainGap);
    for (std::size_t i = 0; i < gains.size(); ++i) {
        const ExplainedStep& gain = gains[i];
        const int top = static_cast<int>(i) * GainHeight;
        const bool some = gain.share > 0;
        painter.setPen(QColor(colours.Text));
        painter.drawText(QRect(0, top, names, GainHeight), Qt::AlignLeft | Qt::AlignVCenter,
                         gain.what);
        painter.setPen(QColor(some ? colours.Text : colours.TextOff));
        const int side = some ? Qt::AlignRight : Qt::AlignLeft;
        painter.drawText(some ? QRect(names + GainGap, top, numbers, GainHeight)
                              : QRect(names + GainGap, top, width() - names - GainGap, GainHeight),
                         side | Qt::AlignVCenter, gain.value);
        if (some)
            painter.fillRect(QRectF(numbersRight + GainGap, top + 4,
                                    std::max(1.0, room * gain.share), GainHeight - 8),
                             QColor(colours.Accent));
    }
}

} // namespace Hesperin
