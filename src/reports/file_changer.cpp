#include "reports/file_changer.h"

#include "creature_files/document.h"
#include "creature_files/reader.h"
#include "model/evaluation.h"
#include "system/read_file.h"
#include "text/numbers.h"

namespace Hesperin {

namespace {

/// What the creature in a file comes to.
struct Computed {
    Evaluation evaluation;
    QString tier;
};

Error CountsAs(const QString& element, const QString& value, const QString& counted) {
    Error note{Error::What::CountsAs, value, counted};
    note.element = element;
    return note;
}

/// What the figures are computed with, otherwise than the file says.
void AddNotes(const ReadCreature& read, const Evaluation& evaluation, std::vector<Error>& notes) {
    for (const Correction& correction : evaluation.validated.corrections)
        if (const auto parameter = ParameterOf(correction.what))
            notes.push_back(CountsAs(ElementOf(*parameter).toString(), correction.from,
                                     QString::number(correction.to)));
    for (const ListField list :
         {ListField::Tier, ListField::Speed, ListField::Initiative, ListField::Upgrade})
        for (const Element* element : ElementsToRead())
            if (element->list == list && read.missing.contains(element->name))
                notes.push_back(
                    CountsAs(element->name.toString(), {}, read.creature.Choices[list].text));
}

/// Of the file's creature with the changes so far.
Result<Computed> Compute(const EditedFile& file, std::vector<Error>& notes) {
    const auto bytes = file.Write();
    if (!bytes)
        return bytes.Why();
    const auto document = NormaliseCreature(*bytes);
    if (!document)
        return document.Why();
    const ReadCreature read = ReadCreatureText(*document, EmptyCreature());
    const Creature& creature = read.creature;
    Computed computed{Evaluate(EnteredOf(creature)), creature.Choices[ListField::Tier].text};
    if (!computed.evaluation.figures)
        return Error{Error::What::NoPower};
    AddNotes(read, computed.evaluation, notes);
    return computed;
}

Failure SetFigure(const ComputedChange& change, const Computed& computed, const ModScale* scale,
                  EditedFile& file) {
    double figure = ResultOf(computed.evaluation.powers, *computed.evaluation.figures,
                             change.method, change.figure);
    if (scale != nullptr) {
        const auto inMod = scale->Scaled(figure, RoundTo16Bits(TextToNumber(computed.tier)),
                                         change.figure, change.name);
        if (!inMod)
            return inMod.Why();
        figure = *inMod;
    }
    return file.Set(change.name, WholeText(figure));
}

/// The computed figures last: none of them is read by the computation.
Failure ApplyAll(const FileChanger& changer, EditedFile& file, std::vector<Error>& notes) {
    std::vector<ComputedChange> figures;
    for (const Change& change : changer.changes)
        if (const auto figure = ReadComputed(change))
            figures.push_back(*figure);
        else if (auto failure = Apply(change, changer.anyWord, file, notes))
            return failure;
    if (figures.empty())
        return {};
    const auto computed = Compute(file, notes);
    if (!computed)
        return computed.Why();
    for (const ComputedChange& change : figures)
        if (auto failure = SetFigure(change, *computed, changer.scale, file))
            return failure;
    return {};
}

} // namespace

ChangeReport TryEdit(const QString& path, const FileEditing& edit) {
    ChangeReport report{.file = path};
    const auto bytes = ReadFile(path, LargestCreatureFile);
    auto file = bytes ? EditedFile::Open(*bytes) : Result<EditedFile>(bytes.Why());
    if (!file) {
        report.errors = {file.Why()};
        return report;
    }
    edit(*file, report);
    if (!report.errors.empty())
        return report;
    std::vector<FileChange> made = file->Changes();
    if (made.empty())
        return report;
    const auto edited = file->Write();
    if (!edited) {
        report.errors = {edited.Why()};
        return report;
    }
    report.changes = std::move(made);
    report.before = *bytes;
    report.after = *edited;
    return report;
}

ChangeReport FileChanger::Try(const QString& path) const {
    return TryEdit(path, [this](EditedFile& file, ChangeReport& report) {
        if (auto failure = ApplyAll(*this, file, report.notes))
            report.errors = {*std::move(failure)};
    });
}

} // namespace Hesperin
