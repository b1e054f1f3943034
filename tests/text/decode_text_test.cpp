#include "support/test_program.h"
#include "text/decode_text.h"

#include <gtest/gtest.h>

#include <QStringEncoder>

namespace Hesperin {

namespace {

constexpr auto Cyrillic = CodePage::Windows1251;
constexpr auto Western = CodePage::Windows1252;

QByteArray Utf16(const QString& text, bool bigEndian = false, bool mark = false) {
    QStringEncoder encoder(bigEndian ? QStringConverter::Utf16BE : QStringConverter::Utf16LE,
                           mark ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default);
    return encoder(text);
}

TEST(DecodeText, RecognisesTheEncoding) {
    const QString dragon = "Дракон";
    const QString half(32, 'a');
    const struct {
        QByteArray bytes;
        CodePage fallback;
        QString text;
    } cases[] = {
        {"", Cyrillic, ""},
        {"a", Cyrillic, "a"},
        {dragon.toUtf8(), Western, dragon},
        {"\xEF\xBB\xBF" + dragon.toUtf8(), Western, dragon},
        {Utf16(dragon, false, true), Cyrillic, dragon},
        {Utf16(dragon, true, true), Cyrillic, dragon},
        {"\xFF\xFE", Cyrillic, ""},
        {Utf16("Bash!"), Western, "Bash!"},
        {Utf16(half + dragon), Western, half + dragon}, // every second byte of the first 64 is 0
        {QByteArray("a\0\0b", 4), Western, QString::fromUtf16(u"a\0\0b", 4)},
        {"\xC4\xF0\xE0\xEA\xEE\xED", Cyrillic, dragon},
        {"Caf\xE9 \x80", Western, "Café €"},
        {"Caf\xE9", Western, "Café"}, // the last byte would begin a longer UTF-8 sequence
        {"\xC4", Western, "Ä"},
    };
    for (const auto& [bytes, fallback, text] : cases)
        EXPECT_EQ(DecodeText(bytes, fallback), text) << bytes.toHex().data();
}

TEST(DecodeCodePage, KnowsTheOddCornersOfBothSets) {
    EXPECT_EQ(DecodeCodePage("\xA8\xB8\xC0\xDF\xE0\xFF\x80\x88\xB9~\x98", Cyrillic), "ЁёАЯаяЂ€№~\uFFFD");
    EXPECT_EQ(DecodeCodePage("\x80\x8A\x8C\x9C\x9F\xA0\xDF\xFF~", Western), "€ŠŒœŸ\u00A0ßÿ~");
    EXPECT_EQ(DecodeCodePage("\x81\x8D\x8F\x90\x9D", Western), QString(5, QChar::ReplacementCharacter));
}

} // namespace

} // namespace Hesperin
