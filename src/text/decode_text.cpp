#include "text/decode_text.h"

#include <QStringDecoder>

namespace Hesperin {

namespace {

bool LooksLikeUtf16(const QByteArray& bytes) {
    constexpr qsizetype probe = 64;
    const qsizetype end = std::min(bytes.size(), probe);
    for (qsizetype at = 1; at < end; at += 2)
        if (bytes[at] != 0)
            return false;
    return end >= 2;
}

QString DecodeUtf16(const QByteArray& bytes, QStringConverter::Encoding encoding) {
    return QStringDecoder(encoding)(bytes);
}

} // namespace

QString DecodeText(const QByteArray& bytes, CodePage fallback) {
    if (bytes.startsWith("\xFF\xFE"))
        return DecodeUtf16(bytes, QStringConverter::Utf16LE);
    if (bytes.startsWith("\xFE\xFF"))
        return DecodeUtf16(bytes, QStringConverter::Utf16BE);
    if (LooksLikeUtf16(bytes))
        return DecodeUtf16(bytes, QStringConverter::Utf16LE);
    // Stateless: a character that the end cuts off is an error too.
    QStringDecoder utf8(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    QString text = utf8(bytes);
    if (!utf8.hasError())
        return text;
    return DecodeCodePage(bytes, fallback);
}

} // namespace Hesperin
