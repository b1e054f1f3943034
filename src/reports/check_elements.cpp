// Which elements are there, and the numbers in them.
#include "reports/check_file.h"

#include "creature_files/change.h"
#include "text/decimal.h"

#include <algorithm>
#include <array>

namespace Hesperin {

namespace {

constexpr QStringView FiguresAboveZero[] = {u"Power", u"WeeklyGrowth", u"Cost/Gold"};

void CheckNumber(const FileElement& element, FindingList& findings) {
    const auto number = ReadWhole(element.text);
    const ParameterRange* range = RangeOf(element.path);
    if (!number) {
        const bool isTooLong = range != nullptr && IsWhole(element.text);
        findings.Add(isTooLong ? Rule::NumberRange : Rule::Number, element);
        return;
    }
    if (range != nullptr && (*number < range->lowest || *number > range->highest))
        findings.Add(Rule::NumberRange, element);
    const bool isFigure = std::find(std::begin(FiguresAboveZero), std::end(FiguresAboveZero),
                                    element.path) != std::end(FiguresAboveZero);
    if (isFigure && *number == 0)
        findings.Add(Rule::FigureZero, element);
}

/// The element around one that is lacking, or the nearest around that.
const FileElement& Around(const FileElements& elements, const Element& lacking) {
    const FileElement* group = elements.First(lacking.parent);
    return group != nullptr ? *group : elements.All().front();
}

} // namespace

const ParameterRange* RangeOf(QStringView element) {
    const auto parameter = ParameterIn(element);
    return parameter ? &ParameterRanges[*parameter] : nullptr;
}

void CheckElements(const FileElements& elements, FindingList& findings) {
    if (elements.All().empty())
        return;
    std::vector<bool> isThere(Elements.size());
    for (const FileElement& element : elements.All()) {
        if (element.format == nullptr)
            continue;
        const auto index = static_cast<std::size_t>(element.format - Elements.data());
        if (isThere[index])
            findings.Add(Rule::ElementTwice, element);
        isThere[index] = true;
        if (TakesNumber(*element.format))
            CheckNumber(element, findings);
    }
    for (const Element& format : Elements) {
        if (isThere[static_cast<std::size_t>(&format - Elements.data())])
            continue;
        FileElement lacking = Around(elements, format);
        lacking.path = PathOf(format);
        lacking.text.clear();
        findings.Add(Rule::ElementMissing, lacking,
                     QStringLiteral("<%1>").arg(format.name.toString()));
    }
}

} // namespace Hesperin
