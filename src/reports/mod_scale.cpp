#include "reports/mod_scale.h"

#include "creature_files/creature_folder.h"
#include "creature_files/document.h"
#include "creature_files/reader.h"
#include "model/evaluation.h"
#include "text/numbers.h"

#include <algorithm>

namespace Hesperin {

namespace {

/// The figure that the file has, which may lie outside the 16 bits that are read of it.
double InFile(const ReadCreature& read, const FigureInFile& row) {
    for (const LimitedNumber& limited : read.limited)
        if (limited.element == row.element)
            return TextToNumber(limited.text);
    return read.figures.*row.value;
}

} // namespace

const std::vector<double>* ModScale::RatiosOf(std::int16_t tier, Figure figure) const {
    if (tier < 1 || static_cast<std::size_t>(tier) >= Tiers)
        return nullptr;
    return &ratios[static_cast<std::size_t>(figure)][static_cast<std::size_t>(tier)];
}

void ModScale::Add(std::int16_t tier, Figure figure, double average, double inFile) {
    if (RatiosOf(tier, figure) != nullptr && average > 0 && inFile > 0)
        ratios[static_cast<std::size_t>(figure)][static_cast<std::size_t>(tier)].push_back(average /
                                                                                           inFile);
}

std::optional<double> ModScale::Of(std::int16_t tier, Figure figure) const {
    const auto* known = RatiosOf(tier, figure);
    if (known == nullptr || known->empty())
        return std::nullopt;
    std::vector<double> sorted = *known;
    std::sort(sorted.begin(), sorted.end());
    const std::size_t middle = sorted.size() / 2;
    return sorted.size() % 2 == 1 ? sorted[middle] : (sorted[middle - 1] + sorted[middle]) / 2;
}

std::size_t ModScale::CountOf(std::int16_t tier, Figure figure) const {
    const auto* known = RatiosOf(tier, figure);
    return known == nullptr ? 0 : known->size();
}

ModScale ScaleOf(const QStringList& paths) {
    ModScale scale;
    for (const QString& file : CreatureFilesAt(paths)) {
        const auto document = LoadCreatureDocument(file);
        if (!document)
            continue;
        const ReadCreature read = ReadCreatureText(document->text, EmptyCreature());
        const Evaluation evaluation = Evaluate(EnteredOf(read.creature));
        if (!evaluation.figures)
            continue;
        const std::int16_t tier =
            RoundTo16Bits(TextToNumber(read.creature.Choices[ListField::Tier].text));
        for (const FigureInFile& row : FiguresInFile)
            scale.Add(tier, row.figure,
                      ResultOf(evaluation.powers, *evaluation.figures, Method::Average, row.figure),
                      InFile(read, row));
    }
    return scale;
}

} // namespace Hesperin
