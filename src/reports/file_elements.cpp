#include "reports/file_elements.h"

#include "text/decimal.h"
#include "xml/document_text.h"
#include "xml/places.h"

#include <algorithm>

namespace Hesperin {

namespace {

/// Gives the elements their places in the file's own text, where it has the same ones.
void FindPlaces(const QByteArray& bytes, const std::vector<ElementPlace>& read,
                std::vector<FileElement>& elements) {
    const auto document = DocumentText::Decode(bytes);
    if (!document)
        return;
    const QStringView text = document->Text();
    const auto places = FindElements(text);
    const auto sameName = [](const ElementPlace& a, const ElementPlace& b) {
        return a.name == b.name;
    };
    if (!places || !std::equal(places->begin(), places->end(), read.begin(), read.end(), sameName))
        return;
    qsizetype lineStart = 0;
    qsizetype at = 0;
    for (std::size_t i = 0; i < elements.size(); ++i) {
        const ElementPlace& place = (*places)[i];
        for (; at < place.startTag.start; ++at)
            if (text[at] == u'\n')
                lineStart = at + 1;
        elements[i].line = place.line;
        elements[i].column = at - lineStart + 1;
    }
}

} // namespace

FileElements::FileElements(const QByteArray& bytes, QStringView normalised) {
    const auto read = FindElements(normalised);
    if (!read)
        return;
    elements.reserve(read->size());
    for (const ElementPlace& place : *read) {
        FileElement element;
        if (place.parent > 0)
            element.path = elements[static_cast<std::size_t>(place.parent)].path + u'/';
        if (place.parent >= 0)
            element.path += place.name;
        element.format = ElementAt(element.path);
        element.children = place.children;
        if (place.children == 0)
            element.text = Resolved(normalised.sliced(place.content.start, place.content.Length()))
                               .value_or(QString())
                               .trimmed();
        elements.push_back(std::move(element));
    }
    FindPlaces(bytes, *read, elements);
    for (std::size_t i = 0; i < read->size(); ++i) {
        for (const AttributePlace& attribute : AttributesOf(normalised, (*read)[i].startTag)) {
            if (attribute.name != u"href" || attribute.value.Length() == 0)
                continue;
            FileElement reference = elements[i];
            reference.path += QLatin1String("@href");
            reference.text =
                Resolved(normalised.sliced(attribute.value.start, attribute.value.Length()))
                    .value_or(QString());
            references.push_back(std::move(reference));
        }
    }
}

const FileElement* FileElements::First(QStringView path) const {
    const auto found = std::find_if(elements.begin(), elements.end(),
                                    [&](const FileElement& e) { return e.path == path; });
    return found == elements.end() ? nullptr : &*found;
}

std::optional<std::int64_t> FileElements::Number(QStringView path) const {
    const FileElement* element = First(path);
    return element == nullptr ? std::nullopt : ReadWhole(element->text);
}

std::vector<const FileElement*> FileElements::At(QStringView path) const {
    std::vector<const FileElement*> found;
    for (const FileElement& element : elements)
        if (element.path == path)
            found.push_back(&element);
    return found;
}

} // namespace Hesperin
