// Where the elements of a document lie in its text.
#pragma once

#include "text/error.h"

#include <QStringView>

#include <vector>

namespace Hesperin {

/// A part of a text, from its first unit to behind its last.
struct Span {
    qsizetype start = 0;
    qsizetype end = 0;

    qsizetype Length() const { return end - start; }
    bool operator==(const Span&) const = default;
};

struct ElementPlace {
    QStringView name;
    int parent = -1;         ///< place in the list of elements; -1 for the root
    int children = 0;        ///< elements right below
    Span startTag;           ///< with its brackets
    Span content;            ///< between the tags; empty behind a tag like <X/>
    qsizetype end = 0;       ///< behind the last tag
    qint64 line = 0;         ///< of the start tag, from 1
    bool isEmptyTag = false; ///< <X/>

    Span Whole() const { return {startTag.start, end}; }
};

/// The elements of a well-formed document in the order of their start tags. What an entity brings
/// in is not among them. `text` must outlive them. A text that isn't well-formed gives
/// Error::What::NotWellFormed.
Result<std::vector<ElementPlace>> FindElements(QStringView text);

/// A part of an element's content that has no element in it.
struct ContentPiece {
    enum class Kind : std::uint8_t {
        Text,      ///< characters and the references that stand for one
        CData,     ///< what stands between <![CDATA[ and ]]>
        Entity,    ///< a reference to an entity that the document declares
        Invisible, ///< a comment or a processing instruction
    };
    Kind kind;
    Span span;
};

/// The pieces of a content without elements.
std::vector<ContentPiece> PiecesOf(QStringView text, Span content);

struct AttributePlace {
    QStringView name;
    Span value; ///< between the quotes
    QChar quote;
};

/// The attributes of a start tag.
std::vector<AttributePlace> AttributesOf(QStringView text, Span startTag);

/// What characters and references stand for; none where an entity is referred to.
std::optional<QString> Resolved(QStringView text);

} // namespace Hesperin
