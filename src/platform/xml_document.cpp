#include "platform/xml_document.h"

#include "platform/code_page.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <optional>
#include <vector>

namespace Hesperin {

namespace {

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
            text.clear();
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
            text.clear();
            return;
        } else {
            out += u'>';
        }
        text.clear();
        out += QLatin1String("</");
        const qsizetype at = out.size();
        out.resize(at + element.nameLength);
        std::copy_n(out.constData() + element.nameAt, element.nameLength, out.data() + at);
        out += u'>';
    }

    qsizetype Length() const { return out.size(); }
    QString Take() { return std::move(out); }

private:
    static bool IsWhiteSpace(QStringView characters) {
        return std::all_of(characters.begin(), characters.end(), [](QChar character) {
            return character == u' ' || character == u'\t' || character == u'\n' ||
                   character == u'\r';
        });
    }

    static void Escape(QStringView characters, QString& target, bool inAttribute) {
        for (const QChar character : characters) {
            if (character == u'&')
                target += QLatin1String("&amp;");
            else if (character == u'<')
                target += QLatin1String("&lt;");
            else if (character == u'>')
                target += QLatin1String("&gt;");
            else if (inAttribute && character == u'"')
                target += QLatin1String("&quot;");
            else
                target += character;
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

/// The code page that the document declares, where it is one that a parser need not know.
std::optional<CodePage> DeclaredCodePage(const QByteArray& bytes) {
    if (!bytes.startsWith("<?xml"))
        return std::nullopt;
    const QByteArray declaration = bytes.left(bytes.indexOf("?>")).left(256).toLower();
    if (declaration.contains("windows-1251"))
        return CodePage::Windows1251;
    if (declaration.contains("windows-1252"))
        return CodePage::Windows1252;
    return std::nullopt;
}

XmlProblem ProblemOf(const QXmlStreamReader& reader) {
    const bool endsEarly = reader.error() == QXmlStreamReader::PrematureEndOfDocumentError;
    return {endsEarly ? XmlProblem::Kind::EndsEarly : XmlProblem::Kind::NotWellFormed,
            reader.errorString(), reader.lineNumber(), reader.columnNumber() + 1};
}

} // namespace

std::variant<QString, XmlProblem> NormaliseXml(const QByteArray& bytes, QStringView root,
                                               qsizetype longest) {
    QXmlStreamReader reader;
    reader.setNamespaceProcessing(false);
    if (const auto codePage = DeclaredCodePage(bytes))
        reader.addData(DecodeCodePage(bytes, *codePage));
    else
        reader.addData(bytes);

    Normaliser normaliser(bytes.size() + bytes.size() / 8);
    bool rootSeen = false;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (!rootSeen && reader.qualifiedName() != root)
                return XmlProblem{XmlProblem::Kind::WrongRoot, reader.qualifiedName().toString(),
                                  reader.lineNumber(), reader.columnNumber() + 1};
            rootSeen = true;
            normaliser.Start(reader.qualifiedName(), reader.attributes());
            break;
        case QXmlStreamReader::EndElement:
            normaliser.End();
            break;
        case QXmlStreamReader::Characters:
            normaliser.Characters(reader.text());
            break;
        case QXmlStreamReader::EntityReference:
            return XmlProblem{
                XmlProblem::Kind::NotWellFormed,
                QStringLiteral("Entity '%1' is not declared here.").arg(reader.name()),
                reader.lineNumber(), reader.columnNumber() + 1};
        default:
            break;
        }
        if (normaliser.Length() > longest && !reader.hasError())
            return XmlProblem{
                XmlProblem::Kind::TooLong, {}, reader.lineNumber(), reader.columnNumber() + 1};
    }
    if (reader.hasError())
        return ProblemOf(reader);
    return normaliser.Take();
}

} // namespace Hesperin
