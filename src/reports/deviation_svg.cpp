#include "reports/deviation_svg.h"

#include "reports/html_page.h"
#include "text/fill.h"

namespace Hesperin {

namespace {

QByteArray Coordinate(double value) {
    return QByteArray::number(value, 'f', 1);
}

/// ` name="value"` with a number.
QByteArray Attribute(const char* name, double value) {
    return QByteArray(" ") + name + "=\"" + Coordinate(value) + '"';
}

enum class Side : std::uint8_t { Start, Middle, End };

QByteArray SvgText(const QRectF& place, Side side, const QByteArray& kind, const QString& text) {
    constexpr const char* anchors[] = {"start", "middle", "end"};
    const double x = side == Side::Start ? place.left()
                     : side == Side::End ? place.right()
                                         : place.center().x();
    return HtmlElement("text class=\"" + kind + '"' + Attribute("x", x) +
                           Attribute("y", place.center().y()) + " text-anchor=\"" +
                           anchors[static_cast<std::size_t>(side)] + '"',
                       text);
}

Side SideOf(const DeviationPoint& point) {
    if (point.labelPlace.left() > point.x)
        return Side::Start;
    return point.labelPlace.right() < point.x ? Side::End : Side::Middle;
}

QByteArray SvgPoint(const DeviationPoint& point, double radius, const Survey& survey) {
    QByteArray start = "<circle";
    if (point.outlier)
        start += point.deviation > 0 ? " class=\"high\"" : " class=\"low\"";
    return start + " data-row=\"" + QByteArray::number(static_cast<qulonglong>(point.row)) + '"' +
           Attribute("cx", point.x) + Attribute("cy", point.y) + Attribute("r", radius) + '>' +
           HtmlElement("title",
                       ShownName(survey.rows[point.row]) + ": " + DeviationText(point.deviation)) +
           "</circle>";
}

QByteArray SvgLine(const DeviationLine& line, const QRectF& place) {
    QByteArray element = line.deviation == 0 ? "<line class=\"zero\"" : "<line";
    element += Attribute("x1", place.left()) + Attribute("x2", place.right()) +
               Attribute("y1", line.y) + Attribute("y2", line.y) + "></line>";
    if (!line.labelPlace.isEmpty())
        element += SvgText(line.labelPlace, Side::End, "axis", DeviationText(line.deviation, 0));
    return element;
}

QByteArray SvgPanel(const DeviationPanel& panel, double radius, const Survey& survey,
                    const Messages& messages) {
    constexpr int decimals = 3;
    QByteArray element = "<rect rx=\"4\"" + Attribute("x", panel.place.left()) +
                         Attribute("y", panel.place.top()) +
                         Attribute("width", panel.place.width()) +
                         Attribute("height", panel.place.height()) + "></rect>";
    element += SvgText(panel.titlePlace, Side::Middle, "tier",
                       Fill(messages.PictureTier, {QString::number(panel.tier)}));
    if (panel.scale)
        element +=
            SvgText(panel.scalePlace, Side::Middle, "scale",
                    Fill(messages.PictureScale, {QString::number(*panel.scale, 'f', decimals)}));
    element += SvgText(panel.countPlace, Side::Middle, "count",
                       Fill(messages.PictureCount, {QString::number(panel.count)}));
    for (const DeviationLine& line : panel.lines)
        element += SvgLine(line, panel.place);
    for (const DeviationPoint& point : panel.points)
        element += SvgPoint(point, radius, survey);
    for (const DeviationPoint& point : panel.points)
        if (!point.label.isEmpty())
            element += SvgText(point.labelPlace, SideOf(point), "name", point.label);
    return element + '\n';
}

} // namespace

QByteArray DeviationSvg(const DeviationPicture& picture, const Survey& survey,
                        const QByteArray& kind, const Messages& messages) {
    QByteArray element =
        "<svg class=\"" + kind + "\" role=\"img\" aria-label=\"" + InHtml(messages.SurveyPicture) +
        "\" viewBox=\"0 0 " + Coordinate(picture.width) + ' ' + Coordinate(picture.height) + '"' +
        Attribute("font-size", DeviationFontSize) + " dominant-baseline=\"central\">\n";
    for (const DeviationPanel& panel : picture.panels)
        element += SvgPanel(panel, picture.radius, survey, messages);
    return element + "</svg>\n";
}

} // namespace Hesperin
