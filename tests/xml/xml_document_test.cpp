#include "support/cases_file.h"
#include "support/error_in_words.h"
#include "xml/xml_document.h"

#include <QStringEncoder>

#include <ctime>

namespace Hesperin {

namespace {

constexpr qsizetype Longest = 32767;
const QString Declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";

/// The normalised text behind its first line, or what is wrong: what the parser says of it differs by version.
QString Normalised(const QByteArray& bytes) {
    const auto document = NormaliseXml(bytes, u"Creature", Longest);
    if (document)
        return document->startsWith(Declaration + '\n') ? document->mid(Declaration.size() + 1) : "no declaration";
    const Error& error = document.Why();
    return NameOf(error.what) + (error.what == Error::What::NotWellFormed ? "" : ' ' + error.value);
}

TEST(NormaliseXml, GivesOneFormOrNamesThePlaceOfTheFault) {
    ExpectCases("xml/normalising.txt", [](const QString& act) {
        QByteArray bytes = act.toUtf8();
        for (const auto& [written, meant] : {std::pair("\\n", '\n'), {"\\r", '\r'}, {"\\t", '\t'}, {"\\0", '\0'}})
            bytes.replace(written, QByteArray(1, meant));
        const auto document = NormaliseXml(bytes, u"Creature", Longest);
        if (document) {
            EXPECT_EQ(*NormaliseXml(document->toUtf8(), u"Creature", Longest), *document) << "its own output";
            return Normalised(bytes);
        }
        const Error& error = document.Why();
        EXPECT_GE(error.column, 1);
        EXPECT_LE(error.column, bytes.split('\n').at(error.line - 1).size() + 1);
        return QString("%1, line %2, <%3>").arg(Normalised(bytes).trimmed()).arg(error.line).arg(error.element);
    });
}

TEST(NormaliseXml, ReadsTheDeclaredEncoding) {
    const QString body = "<Creature>\n\t<A>Дракон</A>\n</Creature>";
    const auto utf16 = [&](QStringConverter::Encoding encoding) {
        QStringEncoder encoder(encoding, QStringConverter::Flag::WriteBom);
        return QByteArray(encoder("<?xml version=\"1.0\" encoding=\"UTF-16\"?>" + body));
    };
    const auto declared = [](const char* encoding, const QByteArray& text) {
        return "<?xml version='1.0' encoding='" + QByteArray(encoding) + "'?><Creature><A>" + text + "</A></Creature>";
    };
    const QString refused = "NotWellFormed";
    const std::pair<QByteArray, QString> cases[] = {
        {body.toUtf8(), body},
        {"<?xml version='1.0' encoding='utf-8'?>" + body.toUtf8(), body},
        {"\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-8'?>" + body.toUtf8(), body},
        {utf16(QStringConverter::Utf16LE), body},
        {utf16(QStringConverter::Utf16BE), body},
        {declared("Windows-1251", "\xC4\xF0\xE0\xEA\xEE\xED"), body},
        {declared("windows-1252", "\xC4\x80"), "<Creature>\n\t<A>Ä€</A>\n</Creature>"},
        {declared("ISO-8859-1", "\xE9"), "<Creature>\n\t<A>é</A>\n</Creature>"},
        {declared("UTF-16", "Дракон"), body}, // in single bytes it is UTF-8
        {"<Creature>\n<A>\xC4\xF0</A></Creature>", refused},
        {declared("UTF-7", "+2AA-"), refused}, // half a pair; the same in UTF-16
        {QByteArray("\xFF\xFE<\0C\0r\0e\0a\0t\0u\0r\0e\0>\0\0\xD8<\0/\0C\0r\0e\0a\0t\0u\0r\0e\0>\0", 46), refused},
        {declared("x-none", ""), refused},
        {"", "EndsEarly "},
    };
    for (const auto& [bytes, text] : cases)
        EXPECT_EQ(Normalised(bytes), text) << bytes.data();
}

TEST(NormaliseXml, CountsTheLengthInUtf16UnitsOfTheNormalisedText) {
    const qsizetype room = Longest - Declaration.size() - QString("\n<Creature></Creature>").size();
    const QString dragon = "\U0001F409"; // two units
    const struct {
        const char* what;
        QString content;
        bool fits;
    } cases[] = {
        {"exactly the longest", QString(room, u'x'), true},
        {"one unit more", QString(room + 1, u'x'), false},
        {"pairs count as two", dragon.repeated(room / 2) + QString(room % 2, u'x'), true},
        {"one pair too many", dragon.repeated(room / 2 + 1), false},
        {"escapes count as written", QString("&lt;").repeated(room / 4 + 1), false},
        {"a comment counts nothing", "<!--" + QString(2 * Longest, u'x') + "-->", true},
        {"white space that is left out counts nothing", QString(2 * Longest, u' ') + "<A/>", true},
        {"text that is left out counts nothing", QString(2 * Longest, u'x') + "<A/>", true},
    };
    const QString tooLong = "TextTooLong ";
    for (const auto& [what, content, fits] : cases)
        EXPECT_EQ(Normalised(("<Creature>" + content + "</Creature>").toUtf8()) != tooLong, fits) << what;
    EXPECT_EQ(NormaliseXml("<A>12</A>", u"A", 3).Why(), (Error{Error::What::TextTooLong, {}, "3"}));
}

TEST(NormaliseXml, CountsAttributesOutsideQuotesCommentsAndSections) {
    const QByteArray many = QByteArray("=").repeated(2 * Longest);
    for (const QByteArray& harmless :
         {"<!--" + many + "-->", "<?go " + many + "?>", "<![CDATA[" + many + "]]><A/>", many + "<A/>"}) {
        SCOPED_TRACE(harmless.left(10).toStdString());
        EXPECT_EQ(Normalised("<Creature>" + harmless + "</Creature>").left(10), "<Creature>");
    }
    EXPECT_EQ(Normalised("<!DOCTYPE Creature [<!-- ' --><!ENTITY e ']>'>]>\n<Creature>" + QByteArray(Longest, ' ') +
                         "</Creature>"),
              "<Creature></Creature>");
}

TEST(NormaliseXml, StopsSoonInADocumentMadeToKeepTheParserBusy) {
    const auto listed = [](int count, const QByteArray& before, const QByteArray& after) {
        QByteArray list;
        for (int i = 0; i < count; ++i)
            list += before + QByteArray::number(i, 36) + after;
        return list;
    };
    const auto withType = [](const QByteArray& type, const QByteArray& content) {
        return "<!DOCTYPE Creature [" + type + "]>\n<Creature>" + content + "</Creature>";
    };
    const QString tooLong = "TextTooLong ";
    const QByteArray longEntity = "<!ENTITY e '" + QByteArray(4000, 'x') + "'>";
    const QByteArray manyReferences = QByteArray("&e;").repeated(300'000);
    QByteArray bomb = "<!ENTITY e0 'boom'>";
    for (int i = 1; i <= 30; ++i)
        bomb += QString("<!ENTITY e%1 '&e%2;&e%2;'>").arg(i).arg(i - 1).toUtf8();
    const struct {
        const char* what;
        QByteArray document;
        QString wrong;
    } cases[] = {
        {"ten thousand levels",
         "<Creature>" + QByteArray("<a>").repeated(10'000) + QByteArray("</a>").repeated(10'000) + "</Creature>",
         tooLong},
        {"elements", "<Creature>" + QByteArray("<a/>").repeated(200'000) + "</Creature>", tooLong},
        {"attributes", "<Creature" + listed(100'000, " a", "=''") + "/>", tooLong},
        {"attributes behind a quoted bracket", "<Creature a='>'" + listed(100'000, " a", "=''") + "/>", tooLong},
        {"attributes by default", withType("<!ATTLIST X" + listed(50'000, " a", " CDATA '1'") + ">", "<X/>"), tooLong},
        {"declarations behind a quoted end",
         withType("<!ENTITY e ']>'>" + listed(40'000, "<!ATTLIST X a", " CDATA '1'>"), "<X/>"), tooLong},
        {"entities out of entities", withType(bomb, "<A>&e30;</A>"), "NotWellFormed"},
        {"references in a text", withType(longEntity, "<X>" + manyReferences + "</X>"), "NotWellFormed"},
        {"references in an attribute", withType(longEntity, "<X a='" + manyReferences + "'/>"), "NotWellFormed"},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        const std::clock_t start = std::clock(); // of the processor, whatever else it does
        EXPECT_EQ(Normalised(test.document), test.wrong);
        EXPECT_LT(std::clock() - start, 6 * CLOCKS_PER_SEC) << "unguarded, the parser takes minutes";
    }
}

} // namespace

} // namespace Hesperin
