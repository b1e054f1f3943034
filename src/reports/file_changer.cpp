#include "reports/file_changer.h"

#include "creature_files/document.h"
#include "creature_files/reader.h"
#include "model/evaluation.h"
#include "system/read_file.h"
#include "text/numbers.h"

#include <cmath>

namespace Hesperin {

namespace {

/// Sets the figure that the file's creature has as it stands now.
Failure SetComputed(const ComputedChange& computed, const ModScale* scale, EditedFile& file) {
    const auto bytes = file.Write();
    if (!bytes)
        return bytes.Why();
    const auto document = NormaliseCreature(*bytes);
    if (!document)
        return document.Why();
    const Creature creature = ReadCreatureText(*document, EmptyCreature()).creature;
    const Evaluation evaluation = Evaluate(EnteredOf(creature));
    if (!evaluation.figures)
        return Error{Error::What::NoPower};
    double figure =
        ResultOf(evaluation.powers, *evaluation.figures, computed.method, computed.figure);
    if (scale != nullptr) {
        const QString tier = creature.Choices[ListField::Tier].text;
        const auto divisor = scale->Of(RoundTo16Bits(TextToNumber(tier)), computed.figure);
        if (!divisor) {
            Error error{Error::What::NoScale, tier};
            error.element = computed.name;
            return error;
        }
        figure = std::round(figure / *divisor);
    }
    return file.Set(computed.name, WholeText(figure));
}

Failure ApplyAll(const FileChanger& changer, EditedFile& file, std::vector<Error>& notes) {
    for (const Change& change : changer.changes)
        if (!ReadComputed(change))
            if (auto failure = Apply(change, changer.anyWord, file, notes))
                return failure;
    for (const Change& change : changer.changes)
        if (const auto computed = ReadComputed(change))
            if (auto failure = SetComputed(*computed, changer.scale, file))
                return failure;
    return {};
}

} // namespace

ChangeReport FileChanger::Try(const QString& path) const {
    ChangeReport report{path, {}, {}, {}, {}, {}, false};
    const auto bytes = ReadFile(path, LargestCreatureFile);
    auto file = bytes ? EditedFile::Open(*bytes) : Result<EditedFile>(bytes.Why());
    if (!file) {
        report.error = file.Why();
        return report;
    }
    report.error = ApplyAll(*this, *file, report.notes);
    if (report.error)
        return report;
    std::vector<FileChange> made = file->Changes();
    if (made.empty())
        return report;
    const auto edited = file->Write();
    if (!edited) {
        report.error = edited.Why();
        return report;
    }
    report.changes = std::move(made);
    report.before = *bytes;
    report.after = *edited;
    return report;
}

} // namespace Hesperin
