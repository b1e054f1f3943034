// The elements of one creature file with their contents and places, as its checks look at them.
#pragma once

#include "creature_files/elements.h"

#include <QByteArray>

#include <vector>

namespace Hesperin {

/// An element, or an attribute.
struct FileElement {
    QString path{};  ///< below Creature; of an attribute with @ and its name
    QString text{};  ///< its content, white space around it left out
    qint64 line = 0; ///< of its start tag, from 1; 0: no place in the file's own text
    qint64 column = 0;
    const Element* format = nullptr; ///< null: no element of the format
    int children = 0;
};

class FileElements {
public:
    /// Those of a file whose normalised text is `normalised`. The places are those in the bytes;
    /// where an entity brings in elements, none has a place.
    FileElements(const QByteArray& bytes, QStringView normalised);

    const std::vector<FileElement>& All() const { return elements; }

    /// Attributes of the name href that hold something.
    const std::vector<FileElement>& References() const { return references; }

    /// The first element of that path; null when there is none.
    const FileElement* First(QStringView path) const;

    /// The number in it; none when there is no such element or no whole number in it.
    std::optional<std::int64_t> Number(QStringView path) const;

    /// All elements of that path.
    std::vector<const FileElement*> At(QStringView path) const;

private:
    std::vector<FileElement> elements; ///< Creature itself first
    std::vector<FileElement> references;
};

} // namespace Hesperin
