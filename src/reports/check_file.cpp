#include "reports/check_file.h"

namespace Hesperin {

namespace {

FileElement CopyOf(const FileElements& elements, const QString& path) {
    const FileElement* found = elements.First(path);
    return found == nullptr ? FileElement{path, {}} : *found;
}

/// Rules about several elements.
void CheckTogether(const FileElements& elements, FindingList& findings) {
    const auto leastDamage = elements.Number(u"MinDamage");
    const auto greatestDamage = elements.Number(u"MaxDamage");
    if (leastDamage && greatestDamage && *leastDamage > *greatestDamage)
        findings.Add(Rule::NumberOrder, *elements.First(u"MinDamage"),
                     QString::number(*greatestDamage));

    const FileElement* first = elements.First(u"MagicElement/First");
    const FileElement* second = elements.First(u"MagicElement/Second");
    const auto isSame = [](const QString& a, QStringView b) {
        return b.compare(a, Qt::CaseInsensitive) == 0;
    };
    if (first != nullptr && second != nullptr && !second->text.isEmpty() &&
        isSame(first->text, second->text) && !isSame(second->text, u"ELEMENT_NONE"))
        findings.Add(Rule::ElementSame, *second);

    const auto shots = elements.Number(u"Shots");
    const auto range = elements.Number(u"Range");
    if (shots && *shots <= 0 && range && *range != 0)
        findings.Add(Rule::ShooterRange, *elements.First(u"Range"));
}

} // namespace

CheckedFile CheckFile(const QString& file, const QByteArray& bytes, QStringView normalised,
                      const Vocabulary& vocabulary) {
    const FileElements elements(bytes, normalised);
    FindingList findings(file);
    CheckElements(elements, findings);
    CheckItems(elements, vocabulary, findings);
    CheckTogether(elements, findings);
    CheckedFile checked;
    checked.findings = findings.Take();
    checked.power = CopyOf(elements, QStringLiteral("Power"));
    checked.base = CopyOf(elements, QStringLiteral("BaseCreature"));
    for (const FileElement* item : elements.At(u"Upgrades/Item"))
        checked.upgrades.append(item->text);
    checked.references = elements.References();
    return checked;
}

Finding UnreadableFile(const QString& file, const Error& error) {
    FindingList findings(file);
    FileElement place;
    place.path = error.element;
    place.line = error.line;
    place.column = error.column;
    findings.Add(Rule::Document, place).error = error;
    return findings.Take().front();
}

} // namespace Hesperin
