#include "xml/xml_document.h"

#include "text/code_page.h"
#include "text/decode_text.h"
#include "text/shortened.h"
#include "xml/xml_limits.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <optional>
#include <vector>

namespace Hesperin {

namespace {

/// Of all entities of a document together, in characters.
constexpr qsizetype LongestExpansion = 1 << 20;

/// An element whose end hasn't been reached. Its name is kept as a place in the output.
struct OpenElement {
    qsizetype nameAt;
    qsizetype nameLength;
    bool hasAttributes;
    bool hasChildren;
};

class Normaliser {
public:
    explicit Normaliser(qsizetype expectedLength) {
        out.reserve(expectedLength);
        out += QLatin1String("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
    }

    void Start(QStringView name, const QXmlStreamAttributes& attributes) {
        if (!open.empty() && !open.back().hasChildren) {
            open.back().hasChildren = true;
            out += u'>';
            text.resize(0); // which keeps its room
        }
        NewLine(open.size());
        out += u'<';
        open.push_back({out.size(), name.size(), !attributes.isEmpty(), false});
        out += name;
        for (const QXmlStreamAttribute& attribute : attributes) {
            out += u' ';
            out += attribute.qualifiedName();
            out += QLatin1String("=\"");
            Escape(attribute.value(), out, true);
            out += u'"';
        }
    }

    void Characters(QStringView characters) {
        if (!open.empty() && !open.back().hasChildren)
            text += characters;
    }

    void End() {
        const OpenElement element = open.back();
        open.pop_back();
        if (element.hasChildren) {
            NewLine(open.size());
        } else if (!IsWhiteSpace(text)) {
            out += u'>';
            Escape(text, out, false);
        } else if (element.hasAttributes) {
            out += QLatin1String("/>");
            text.resize(0);
            return;
        } else {
            out += u'>';
        }
        text.resize(0);
        out += QLatin1String("</");
        const qsizetype at = out.size();
        out.resize(at + element.nameLength);
        std::copy_n(out.constData() + element.nameAt, element.nameLength, out.data() + at);
        out += u'>';
    }

    qsizetype Length() const { return out.size(); }

    /// Name of the innermost open element.
    QStringView Innermost() const {
        return open.empty() ? QStringView()
                            : QStringView(out).sliced(open.back().nameAt, open.back().nameLength);
    }

    QString Take() { return std::move(out); }

private:
    static bool IsWhiteSpace(QStringView characters) {
        return std::all_of(characters.begin(), characters.end(), [](QChar character) {
            return character == u' ' || character == u'\t' || character == u'\n' ||
                   character == u'\r';
        });
    }

    /// What needs no reference, nearly all, goes over in one piece.
    static void Escape(QStringView characters, QString& target, bool inAttribute) {
        qsizetype done = 0;
        for (qsizetype at = 0; at < characters.size(); ++at) {
            const QLatin1String reference = ReferenceFor(characters[at], inAttribute);
            if (reference.isEmpty())
                continue;
            target += characters.sliced(done, at - done);
            target += reference;
            done = at + 1;
        }
        target += characters.sliced(done);
    }

    static QLatin1String ReferenceFor(QChar character, bool inAttribute) {
        switch (character.unicode()) {
        case u'&':
            return QLatin1String("&amp;");
        case u'<':
            return QLatin1String("&lt;");
        case u'>':
            return QLatin1String("&gt;");
        case u'"':
            return inAttribute ? QLatin1String("&quot;") : QLatin1String();
        default:
            return {};
        }
    }

    void NewLine(std::size_t level) {
        out += u'\n';
        out.resize(out.size() + static_cast<qsizetype>(level), u'\t');
    }

    QString out;
    QString text; // of the innermost open element, as long as it has no child
    std::vector<OpenElement> open;
};

/// The document as text where the parser would misread it by its declaration: one of a code page,
/// which the parser may not know, or of UTF-16 although the file has single bytes.
std::optional<QString> DecodedByDeclaration(const QByteArray& bytes) {
    if (!bytes.startsWith("<?xml"))
        return std::nullopt;
    const QByteArray declaration = bytes.left(bytes.indexOf("?>")).left(256).toLower();
    if (declaration.contains("windows-1251"))
        return DecodeCodePage(bytes, CodePage::Windows1251);
    if (declaration.contains("windows-1252"))
        return DecodeCodePage(bytes, CodePage::Windows1252);
    if (declaration.contains("utf-16"))
        return DecodeText(bytes, CodePage::Windows1252);
    return std::nullopt;
}

/// The first entity that is declared as another file and referred to.
QString EntityInAnotherFile(const QXmlStreamReader& reader, const QByteArray& bytes) {
    for (const QXmlStreamEntityDeclaration& entity : reader.entityDeclarations())
        if (!entity.systemId().isEmpty() && bytes.contains('&' + entity.name().toUtf8() + ';'))
            return entity.name().toString();
    return {};
}

} // namespace

Result<QString> NormaliseXml(const QByteArray& bytes, QStringView root, qsizetype longest) {
    const Error tooLong{Error::What::TextTooLong, {}, QString::number(longest)};
    if (HasEndlessMarkup(bytes, longest))
        return tooLong;
    QXmlStreamReader reader;
    reader.setNamespaceProcessing(false);
    reader.setEntityExpansionLimit(EntityLimit(bytes, LongestExpansion));
    if (const auto text = DecodedByDeclaration(bytes))
        reader.addData(*text);
    else
        reader.addData(bytes);

    Normaliser normaliser(bytes.size() + bytes.size() / 8);
    const auto problem = [&reader, &normaliser](Error::What what, QStringView value) {
        Error error{what, Shortened(value)};
        error.line = reader.lineNumber();
        error.column = reader.columnNumber() + 1;
        error.element = Shortened(normaliser.Innermost());
        return error;
    };
    const auto notWellFormed = [&problem](const QString& detail) {
        return problem(Error::What::NotWellFormed, detail);
    };
    bool rootSeen = false;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (!rootSeen && reader.qualifiedName() != root)
                return problem(Error::What::WrongRoot, reader.qualifiedName());
            rootSeen = true;
            normaliser.Start(reader.qualifiedName(), reader.attributes());
            break;
        case QXmlStreamReader::EndElement:
            normaliser.End();
            break;
        case QXmlStreamReader::Characters:
            normaliser.Characters(reader.text());
            break;
        case QXmlStreamReader::DTD:
            if (const QString entity = EntityInAnotherFile(reader, bytes); !entity.isEmpty())
                return notWellFormed(
                    QStringLiteral("Entity '%1' lies in another file, which is not read.")
                        .arg(entity));
            break;
        case QXmlStreamReader::EntityReference:
            return notWellFormed(QStringLiteral("Entity '%1' not declared.").arg(reader.name()));
        default:
            break;
        }
        if (normaliser.Length() > longest && !reader.hasError())
            return tooLong;
    }
    if (reader.error() == QXmlStreamReader::PrematureEndOfDocumentError)
        return problem(Error::What::EndsEarly, {});
    if (reader.hasError())
        return notWellFormed(reader.errorString());
    QString text = normaliser.Take();
    if (!text.isValidUtf16()) // half a pair, which some encodings can write
        return notWellFormed(QStringLiteral("Encountered incorrectly encoded content."));
    return text;
}

} // namespace Hesperin
