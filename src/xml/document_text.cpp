#include "xml/document_text.h"

#include "text/code_page.h"

#include <QList>
#include <QStringDecoder>
#include <QStringEncoder>

#include <algorithm>

namespace Hesperin {

namespace {

/// The encoding that the document's declaration names, in small letters; empty when it names none.
QByteArray DeclaredEncoding(const QByteArray& bytes) {
    if (!bytes.startsWith("<?xml"))
        return {};
    const QByteArray declaration = bytes.left(bytes.indexOf("?>")).left(256).toLower();
    const qsizetype name = declaration.indexOf("encoding");
    if (name < 0)
        return {};
    const qsizetype equals = declaration.indexOf('=', name);
    const auto isQuote = [](char byte) { return byte == '"' || byte == '\''; };
    const auto first = std::find_if(declaration.begin() + std::max<qsizetype>(equals, 0),
                                    declaration.end(), isQuote);
    if (first == declaration.end())
        return {};
    const auto last = std::find(first + 1, declaration.end(), *first);
    return QByteArray(&*first + 1, last - first - 1);
}

} // namespace

Result<DocumentText::Encoding> DocumentText::EncodingOf(const QByteArray& bytes) {
    if (bytes.startsWith("\xFF\xFE") || bytes.startsWith(QByteArray("<\0", 2)))
        return Encoding::Utf16Le;
    if (bytes.startsWith("\xFE\xFF") || bytes.startsWith(QByteArray("\0<", 2)))
        return Encoding::Utf16Be;
    if (bytes.startsWith("\xEF\xBB\xBF"))
        return Encoding::Utf8;
    const QByteArray name = DeclaredEncoding(bytes);
    if (name.isEmpty() || name == "utf-8" || name == "utf8" || name == "us-ascii" ||
        name == "ascii" || name.startsWith("utf-16")) // in a file of single bytes, which is UTF-8
        return Encoding::Utf8;
    if (name == "windows-1251")
        return Encoding::Windows1251;
    if (name == "windows-1252")
        return Encoding::Windows1252;
    if (name == "iso-8859-1" || name == "latin1")
        return Encoding::Latin1;
    return Error{Error::What::EncodingUnknown, QString::fromLatin1(name)};
}

Result<DocumentText> DocumentText::Decode(const QByteArray& bytes) {
    const auto encoding = EncodingOf(bytes);
    if (!encoding)
        return encoding.Why();
    DocumentText document;
    document.encoding = *encoding;
    const bool hasMark = bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF");
    document.mark = bytes.startsWith("\xEF\xBB\xBF") ? 3 : hasMark ? 2 : 0;
    const QByteArrayView content = QByteArrayView(bytes).sliced(document.mark);
    switch (*encoding) {
    case Encoding::Utf8:
        document.text = QString::fromUtf8(content);
        break;
    case Encoding::Utf16Le:
    case Encoding::Utf16Be:
        document.text =
            QStringDecoder(*encoding == Encoding::Utf16Le ? QStringConverter::Utf16LE
                                                          : QStringConverter::Utf16BE)(content);
        document.unitLength = 2;
        break;
    case Encoding::Latin1:
        document.text = QString::fromLatin1(content);
        break;
    case Encoding::Windows1251:
        document.text = DecodeCodePage(content, CodePage::Windows1251);
        break;
    case Encoding::Windows1252:
        document.text = DecodeCodePage(content, CodePage::Windows1252);
        break;
    }
    if (document.text.contains(QChar(0))) // characters of four bytes
        return Error{Error::What::EncodingUnknown, QStringLiteral("UTF-32")};
    const bool oneByteAUnit = document.text.size() == content.size() &&
                              !document.text.contains(QChar::ReplacementCharacter);
    if (document.encoding != Encoding::Utf8 || oneByteAUnit)
        return document;
    document.offsets.reserve(static_cast<std::size_t>(document.text.size()) + 1);
    quint32 offset = 0;
    for (const QChar unit : document.text) {
        document.offsets.push_back(offset);
        // A pair of surrogates has four bytes; all of them count for its second half.
        offset += unit < QChar(0x80)       ? 1U
                  : unit < QChar(0x800)    ? 2U
                  : unit.isLowSurrogate()  ? 4U
                  : unit.isHighSurrogate() ? 0U
                                           : 3U;
    }
    document.offsets.push_back(offset);
    if (offset != content.size()) // some bytes are no UTF-8
        return Error{Error::What::EncodingUnknown, QStringLiteral("UTF-8")};
    return document;
}

qsizetype DocumentText::OffsetOf(qsizetype at) const {
    return mark + (offsets.empty() ? at * unitLength
                                   : static_cast<qsizetype>(offsets[static_cast<std::size_t>(at)]));
}

int DocumentText::SingleByte(char16_t unit) const {
    if (unit < 0x80 || (encoding == Encoding::Latin1 && unit < 0x100))
        return unit;
    if (encoding == Encoding::Latin1 || unit == 0xFFFD)
        return -1;
    const CodePage page =
        encoding == Encoding::Windows1251 ? CodePage::Windows1251 : CodePage::Windows1252;
    for (int byte = 0x80; byte < 0x100; ++byte) {
        const char character = static_cast<char>(byte);
        if (DecodeCodePage(QByteArrayView(&character, 1), page) == QChar(unit))
            return byte;
    }
    return -1;
}

QByteArray DocumentText::Encode(QStringView newText) const {
    if (encoding == Encoding::Utf8)
        return newText.toUtf8();
    if (IsUtf16(encoding))
        return QStringEncoder(encoding == Encoding::Utf16Le ? QStringConverter::Utf16LE
                                                            : QStringConverter::Utf16BE)(newText);
    QByteArray bytes;
    for (const char32_t character : newText.toUcs4()) {
        const int byte = character < 0x10000 ? SingleByte(static_cast<char16_t>(character)) : -1;
        if (byte >= 0)
            bytes += static_cast<char>(byte);
        else
            bytes += "&#x" + QByteArray::number(static_cast<uint>(character), 16).toUpper() + ';';
    }
    return bytes;
}

} // namespace Hesperin
