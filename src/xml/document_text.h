#pragma once

#include "text/error.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace Hesperin {

/// A document's bytes as text, and back: which bytes each unit of the text stands for, and how new
/// text is spelled in the document's encoding.
class DocumentText {
public:
    /// The same encodings that the parser takes: by byte-order mark, by declaration, else UTF-8.
    /// Refuses (Error::What::EncodingUnknown) what it can't spell.
    static Result<DocumentText> Decode(const QByteArray& bytes);

    const QString& Text() const { return text; }

    /// Offset in the bytes of the text's unit `at`, 0 to the text's length.
    qsizetype OffsetOf(qsizetype at) const;

    /// `text` in the document's encoding; a character that it lacks as a reference (`&#x…;`).
    QByteArray Encode(QStringView newText) const;

private:
    enum class Encoding : std::uint8_t { Utf8, Utf16Le, Utf16Be, Latin1, Windows1251, Windows1252 };

    /// Bytes of one character in an encoding of single bytes; -1 when it lacks the character.
    int SingleByte(char16_t unit) const;

    static bool IsUtf16(Encoding encoding) {
        return encoding == Encoding::Utf16Le || encoding == Encoding::Utf16Be;
    }

    static Result<Encoding> EncodingOf(const QByteArray& bytes);

    Encoding encoding = Encoding::Utf8;
    qsizetype mark = 0; ///< length of the byte-order mark
    QString text;
    std::vector<quint32> offsets; ///< of each unit behind the mark; empty when all are as long
    qsizetype unitLength = 1;     ///< then
};

} // namespace Hesperin
