#include "xml/edits.h"

#include "xml/document_text.h"
#include "xml/places.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

TEST(Edits, GoInTheOrderOfTheirPlacesOrAreRefused) {
    const struct {
        std::vector<Edit> edits;
        const char* edited; // null: refused
    } cases[] = {
        {{}, "abcdef"},
        {{{4, 1, "5"}, {0, 0, "0"}, {6, 0, "7"}}, "0abcd5f7"},
        {{{2, 2, ""}, {2, 0, "x"}, {2, 0, "y"}, {4, 0, "z"}}, "abxyzef"},
        {{{1, 3, "x"}, {3, 1, "y"}}, nullptr},
        {{{1, 3, "x"}, {3, 0, "y"}}, nullptr},
        {{{5, 2, "x"}}, nullptr},
        {{{2, -1, "x"}}, nullptr},
    };
    for (const auto& row : cases) {
        const auto edited = ApplyEdits("abcdef", row.edits);
        ASSERT_EQ(static_cast<bool>(edited), row.edited != nullptr);
        EXPECT_EQ(edited ? *edited : QByteArray(), row.edited);
    }
}

/// The file with other contents of the element X, which needs no parser's leave.
QByteArray WithContent(const QByteArray& file, const QString& content) {
    const auto document = DocumentText::Decode(file);
    if (!document)
        return "refused: " + document.Why().value.toUtf8();
    const auto elements = FindElements(document->Text());
    for (const ElementPlace& element : *elements)
        if (element.name == u"X") {
            const qsizetype start = document->OffsetOf(element.content.start);
            const qsizetype end = document->OffsetOf(element.content.end);
            return *ApplyEdits(file, {{start, end - start, document->Encode(content)}});
        }
    return "no X";
}

QByteArray InUtf16(const QString& text, bool bigEndian) {
    QByteArray bytes;
    for (const QChar unit : text)
        (bytes += static_cast<char>(bigEndian ? unit.row() : unit.cell())) +=
            static_cast<char>(bigEndian ? unit.cell() : unit.row());
    return bytes;
}

TEST(Edits, AreSpelledInTheFilesOwnEncoding) {
    const QString content = QString::fromUtf8("Жé€\U0001F409");
    const QByteArray utf8 = content.toUtf8();
    const struct {
        const char* declared;
        QByteArray mark;
        QByteArray before; // in front of X, so that places shift
        QByteArray spelled;
    } bytewise[] = {
        {"UTF-8", "", "Ж\U0001F409é", utf8},
        {"utf-8", "\xEF\xBB\xBF", "Ж", utf8},
        {"UTF-16", "", "Ж", utf8}, // in single bytes it can't be
        {"windows-1251", "", "\xC6\xFF", "\xC6&#xE9;\x88&#x1F409;"},
        {"Windows-1252", "", "\xE9\xFF", "&#x416;\xE9\x80&#x1F409;"},
        {"ISO-8859-1", "", "\xE9\xFF", "&#x416;\xE9&#x20AC;&#x1F409;"},
        {"KOI8-R", "", "", "refused: koi8-r"},
        {"UTF-8", "", "\xE9", "refused: UTF-8"},
    };
    for (const auto& row : bytewise) {
        const QByteArray start =
            row.mark + "<?xml version='1.0' encoding='" + row.declared + "'?>\n<C><!--" + row.before + "--><X>";
        const QByteArray expected = row.spelled.startsWith("refused") ? row.spelled : start + row.spelled + "</X></C>";
        EXPECT_EQ(WithContent(start + "old</X></C>", content).toStdString(), expected.toStdString()) << row.declared;
    }
    for (const bool bigEndian : {false, true})
        for (const QString& mark : {QString(QChar(0xFEFF)), QString()}) {
            const QString start = mark + QString::fromUtf8("<C><!--Ж\U0001F409--><X>");
            EXPECT_EQ(WithContent(InUtf16(start + "old</X></C>", bigEndian), content),
                      InUtf16(start + content + "</X></C>", bigEndian));
        }
    EXPECT_EQ(WithContent(QByteArray("\xFF\xFE\0\0<\0\0\0", 8), content), "refused: UTF-32");
}

} // namespace

} // namespace Hesperin
