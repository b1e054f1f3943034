#include "xml/xml_document.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QStringEncoder>

namespace Hesperin {

namespace {

constexpr qsizetype Longest = 32767;
const QString Declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";

using Outcome = std::variant<QString, XmlProblem>;

Outcome Normalise(const QByteArray& bytes) { return NormaliseXml(bytes, u"Creature", Longest); }

/// The text behind the declaration line; the parser's word in brackets for a refused document.
QString Body(const Outcome& outcome) {
    if (const auto* problem = std::get_if<XmlProblem>(&outcome))
        return "[" + problem->detail + "]";
    const QString& text = std::get<QString>(outcome);
    return text.startsWith(Declaration + "\n") ? text.mid(Declaration.size() + 1) : "[no declaration]";
}

TEST(NormaliseXml, WritesEveryKindOfContentInOneForm) {
    const struct {
        const char* what;
        const char* document;
        const char* body;
    } cases[] = {
        {"root alone", "<Creature/>", "<Creature></Creature>"},
        {"empty and self-closed elements look alike", "<Creature><Exp></Exp><Gold/></Creature>",
         "<Creature>\n\t<Exp></Exp>\n\t<Gold></Gold>\n</Creature>"},
        {"self-closed with attributes", "<Creature><Visual href=\"a\" /><Visual href='b'></Visual></Creature>",
         "<Creature>\n\t<Visual href=\"a\"/>\n\t<Visual href=\"b\"/>\n</Creature>"},
        {"blanks in tags", "<Creature ><Speed\n>5</Speed ></Creature\n>",
         "<Creature>\n\t<Speed>5</Speed>\n</Creature>"},
        {"attributes keep their order and are escaped", "<Creature b = '\"&lt;&amp;&gt;' a=\"it's\"><Exp/></Creature>",
         "<Creature b=\"&quot;&lt;&amp;&gt;\" a=\"it's\">\n\t<Exp></Exp>\n</Creature>"},
        {"attribute with text", "<Creature><Exp kind=\"x\">7</Exp></Creature>",
         "<Creature>\n\t<Exp kind=\"x\">7</Exp>\n</Creature>"},
        {"attribute with white space", "<Creature><Exp kind=\"x\"> \t\r\n </Exp></Creature>",
         "<Creature>\n\t<Exp kind=\"x\"/>\n</Creature>"},
        {"white space only", "<Creature><Exp> \r\n\t </Exp></Creature>", "<Creature>\n\t<Exp></Exp>\n</Creature>"},
        {"white space around text stays", "<Creature><Exp> 7 \n</Exp></Creature>",
         "<Creature>\n\t<Exp> 7 \n</Exp>\n</Creature>"},
        {"a no-break space is text", "<Creature><Exp>&#xA0;</Exp></Creature>",
         "<Creature>\n\t<Exp>\u00A0</Exp>\n</Creature>"},
        {"text beside children", "<Creature>a<Exp>1</Exp>b<Gold>2</Gold>c</Creature>",
         "<Creature>\n\t<Exp>1</Exp>\n\t<Gold>2</Gold>\n</Creature>"},
        {"text before a child's end stays the child's", "<Creature><A>x<B/>y</A><C>z</C></Creature>",
         "<Creature>\n\t<A>\n\t\t<B></B>\n\t</A>\n\t<C>z</C>\n</Creature>"},
        {"comments", "<!-- a --><Creature><Exp>1<!-- 9 -->2</Exp><Gold><!-- 5 --></Gold></Creature><!-- b -->",
         "<Creature>\n\t<Exp>12</Exp>\n\t<Gold></Gold>\n</Creature>"},
        {"CDATA",
         "<Creature><A><![CDATA[<b>&amp;]]></A><B><![CDATA[ "
         "]]></B><C>1<![CDATA[2]]>3</C></Creature>",
         "<Creature>\n\t<A>&lt;b&gt;&amp;amp;</A>\n\t<B></B>\n\t<C>123</C>\n</Creature>"},
        {"entities", "<Creature><A>&lt;&amp;&gt;&quot;&apos;&#65;&#x42;</A></Creature>",
         "<Creature>\n\t<A>&lt;&amp;&gt;\"'AB</A>\n</Creature>"},
        {"processing instructions", "<?go a?><Creature><?go b?><Exp>1<?go c?>2</Exp></Creature><?go?>",
         "<Creature>\n\t<Exp>12</Exp>\n</Creature>"},
        {"document type with an entity of its own",
         "<!DOCTYPE Creature [<!ENTITY gold '12'>]><Creature><Gold>&gold;50</Gold></Creature>",
         "<Creature>\n\t<Gold>1250</Gold>\n</Creature>"},
        {"document type elsewhere", "<!DOCTYPE Creature SYSTEM \"nowhere.dtd\"><Creature/>", "<Creature></Creature>"},
        {"prefixes", "<Creature xmlns:g=\"urn:g\"><g:Exp g:k=\"1\"/><h:Exp/></Creature>",
         "<Creature xmlns:g=\"urn:g\">\n\t<g:Exp g:k=\"1\"/>\n\t<h:Exp></h:Exp>\n</Creature>"},
        {"line ends of two characters", "<?xml version=\"1.0\"?>\r\n<Creature>\r\n<A>1\r\n2</A>\r\n</Creature>\r\n",
         "<Creature>\n\t<A>1\n2</A>\n</Creature>"},
        {"outer blank lines", "<Creature/>\n\n  \n", "<Creature></Creature>"},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        EXPECT_EQ(Body(Normalise(test.document)), QString::fromUtf8(test.body));
    }
}

TEST(NormaliseXml, GivesItsOwnOutputBackUnchanged) {
    const QByteArray document = "<Creature a='&lt;\"'><A>&amp; &gt;</A><B><C k=''/><D>  x</D><E> </E></B></Creature>";
    const QString once = std::get<QString>(Normalise(document));
    EXPECT_EQ(std::get<QString>(Normalise(once.toUtf8())), once);
}

TEST(NormaliseXml, ReadsTheDeclaredEncoding) {
    const QString body = QString::fromUtf8("<Creature>\n\t<A>Дракон</A>\n</Creature>");
    const auto utf16 = [&](QStringConverter::Encoding encoding) {
        QStringEncoder encoder(encoding, QStringConverter::Flag::WriteBom);
        return QByteArray(encoder("<?xml version=\"1.0\" encoding=\"UTF-16\"?>" + body));
    };
    const struct {
        const char* what;
        QByteArray bytes;
        QString body;
    } cases[] = {
        {"no declaration", body.toUtf8(), body},
        {"UTF-8", "<?xml version='1.0' encoding='utf-8'?>" + body.toUtf8(), body},
        {"UTF-8 with mark", "\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-8'?>" + body.toUtf8(), body},
        {"UTF-16 little-endian", utf16(QStringConverter::Utf16LE), body},
        {"UTF-16 big-endian", utf16(QStringConverter::Utf16BE), body},
        {"Windows-1251",
         "<?xml version=\"1.0\" "
         "encoding=\"Windows-1251\"?><Creature><A>\xC4\xF0\xE0\xEA\xEE\xED</A></Creature>",
         body},
        {"Windows-1252",
         "<?xml version=\"1.0\" "
         "encoding=\"windows-1252\"?><Creature>\n\t<A>\xC4\x80</A></Creature>",
         QString::fromUtf8("<Creature>\n\t<A>Ä€</A>\n</Creature>")},
        {"Latin-1", "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><Creature><A>\xE9</A></Creature>",
         QString::fromUtf8("<Creature>\n\t<A>é</A>\n</Creature>")},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        EXPECT_EQ(Body(Normalise(test.bytes)), test.body);
    }
}

TEST(NormaliseXml, RefusesWhatIsNoCreatureDocumentAndNamesThePlace) {
    using Kind = XmlProblem::Kind;
    QByteArray bomb = "<!DOCTYPE Creature [<!ENTITY e0 'boom'>";
    for (int i = 1; i <= 30; ++i) {
        const QByteArray inner = "&e" + QByteArray::number(i - 1) + ";";
        bomb += "<!ENTITY e" + QByteArray::number(i) + " '" + inner + inner + "'>";
    }
    bomb += "]><Creature><A>&e30;</A></Creature>";

    const struct {
        const char* what;
        QByteArray bytes;
        Kind kind;
        qint64 line; // 0: not looked at
    } cases[] = {
        {"nothing", "", Kind::EndsEarly, 0},
        {"a declaration alone", "<?xml version=\"1.0\"?>\n", Kind::EndsEarly, 0},
        {"cut inside a text", "<Creature>\n<Exp>1", Kind::EndsEarly, 2},
        {"cut inside a tag", "<Creature>\n<Exp>1</Exp>\n<Gol", Kind::EndsEarly, 3},
        {"cut before the last tag", "<Creature>\n<Exp>1</Exp>\n", Kind::EndsEarly, 3},
        {"plain words", "Creature", Kind::NotWellFormed, 1},
        {"tags that don't match", "<Creature>\n\t<Exp>1</Exp>\n\t<Gold>1</Glod>\n</Creature>", Kind::NotWellFormed, 3},
        {"the same with long line ends", "<Creature>\r\n\r\n\t<Gold>1</Glod>\r\n</Creature>", Kind::NotWellFormed, 3},
        {"two roots", "<Creature/>\n<Creature/>", Kind::NotWellFormed, 2},
        {"an attribute twice", "<Creature a=\"1\"\na=\"2\"/>", Kind::NotWellFormed, 2},
        {"a bare ampersand", "<Creature>\n<A>this & that</A></Creature>", Kind::NotWellFormed, 2},
        {"an undeclared entity", "<Creature>\n<A>&gold;</A></Creature>", Kind::NotWellFormed, 2},
        {"an undeclared entity that a document type elsewhere might declare",
         "<!DOCTYPE Creature SYSTEM \"x.dtd\">\n<Creature><A>&gold;</A></Creature>", Kind::NotWellFormed, 2},
        {"an entity that grows without end", bomb, Kind::NotWellFormed, 0},
        {"an entity in another file",
         "<!DOCTYPE Creature [<!ENTITY e SYSTEM \"e.xml\">]>\n<Creature><A>&e;</A></Creature>", Kind::NotWellFormed, 1},
        {"a null", QByteArray("<Creature>\n<A>1\0</A></Creature>", 30), Kind::NotWellFormed, 2},
        {"a null behind the root", QByteArray("<Creature/>\n\0", 13), Kind::NotWellFormed, 2},
        {"bytes that are no UTF-8", "<Creature>\n<A>\xC4\xF0</A></Creature>", Kind::NotWellFormed, 0},
        {"half a pair in an encoding that can write it",
         "<?xml version='1.0' encoding='UTF-7'?><Creature><A>+2AA-</A></Creature>", Kind::NotWellFormed, 0},
        {"half a pair in UTF-16",
         QByteArray("\xFF\xFE<\0C\0r\0e\0a\0t\0u\0r\0e\0>\0\0\xD8<\0/\0C\0r\0e\0a\0t\0u\0r\0e\0>\0", 46),
         Kind::NotWellFormed, 0},
        {"an unknown encoding", "<?xml version='1.0' encoding='x-none'?><Creature/>", Kind::NotWellFormed, 0},
        {"another root", "<?xml version=\"1.0\"?>\n\n<Monster><Creature/></Monster>", Kind::WrongRoot, 3},
        {"the root in other letter case", "<creature/>", Kind::WrongRoot, 1},
        {"the root with a prefix", "<g:Creature xmlns:g=\"urn:g\"/>", Kind::WrongRoot, 1},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        const Outcome outcome = Normalise(test.bytes);
        const auto* problem = std::get_if<XmlProblem>(&outcome);
        ASSERT_NE(problem, nullptr) << Body(outcome).toStdString();
        EXPECT_EQ(static_cast<int>(problem->kind), static_cast<int>(test.kind)) << problem->detail.toStdString();
        if (test.line == 0)
            continue;
        EXPECT_EQ(problem->line, test.line);
        const QByteArray line = test.bytes.split('\n').at(test.line - 1);
        EXPECT_GE(problem->column, 1);
        EXPECT_LE(problem->column, line.size() + 1);
    }
}

TEST(NormaliseXml, NamesTheRootItFound) {
    const Outcome outcome = Normalise("<g:Monster/>");
    ASSERT_TRUE(std::holds_alternative<XmlProblem>(outcome));
    EXPECT_EQ(std::get<XmlProblem>(outcome).detail, "g:Monster");
}

TEST(NormaliseXml, CountsTheLengthInUtf16UnitsOfTheNormalisedText) {
    const qsizetype around = Declaration.size() + 1 + QString("<Creature></Creature>").size();
    const qsizetype room = Longest - around;
    const QString dragon = QString::fromUtf8("\xF0\x9F\x90\x89"); // two units
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
    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        const Outcome outcome = Normalise(("<Creature>" + test.content + "</Creature>").toUtf8());
        EXPECT_EQ(std::holds_alternative<QString>(outcome), test.fits);
        if (const auto* problem = std::get_if<XmlProblem>(&outcome)) {
            EXPECT_EQ(static_cast<int>(problem->kind), static_cast<int>(XmlProblem::Kind::TooLong));
        }
    }
}

TEST(NormaliseXml, NamesTheElementThatIsOpenAtThePlace) {
    const struct {
        const char* document;
        const char* element;
    } cases[] = {
        {"<Creature><A>1</A><Exp>5</Gold></Creature>", "Exp"},
        {"<Creature><A>1</A>&gold;</Creature>", "Creature"},
        {"<Creature><Exp>5", "Exp"},
        {"<Creature/><Creature/>", ""},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.document);
        const Outcome outcome = Normalise(test.document);
        ASSERT_TRUE(std::holds_alternative<XmlProblem>(outcome));
        EXPECT_EQ(std::get<XmlProblem>(outcome).element, test.element);
    }
}

TEST(NormaliseXml, CountsAttributesOutsideQuotesCommentsAndSections) {
    const QByteArray many = QByteArray("=").repeated(2 * Longest);
    for (const QByteArray& harmless :
         {"<!--" + many + "-->", "<?go " + many + "?>", "<![CDATA[" + many + "]]><A/>", many + "<A/>"}) {
        SCOPED_TRACE(harmless.left(10).toStdString());
        EXPECT_EQ(Body(Normalise("<Creature>" + harmless + "</Creature>")).left(10), "<Creature>");
    }
    EXPECT_EQ(Body(Normalise("<!DOCTYPE Creature [<!-- ' --><!ENTITY e ']>'>]>\n<Creature>" + QByteArray(Longest, ' ') +
                             "</Creature>")),
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
    const QByteArray longEntity = "<!ENTITY e '" + QByteArray(4000, 'x') + "'>";
    const QByteArray manyReferences = QByteArray("&e;").repeated(300'000);
    const struct {
        const char* what;
        QByteArray document;
        XmlProblem::Kind kind;
    } cases[] = {
        {"ten thousand levels",
         "<Creature>" + QByteArray("<a>").repeated(10'000) + QByteArray("</a>").repeated(10'000) + "</Creature>",
         XmlProblem::Kind::TooLong},
        {"elements", "<Creature>" + QByteArray("<a/>").repeated(200'000) + "</Creature>", XmlProblem::Kind::TooLong},
        {"attributes", "<Creature" + listed(100'000, " a", "=''") + "/>", XmlProblem::Kind::TooLong},
        {"attributes behind a quoted bracket", "<Creature a='>'" + listed(100'000, " a", "=''") + "/>",
         XmlProblem::Kind::TooLong},
        {"attributes by default", withType("<!ATTLIST X" + listed(50'000, " a", " CDATA '1'") + ">", "<X/>"),
         XmlProblem::Kind::TooLong},
        {"declarations behind a quoted end",
         withType("<!ENTITY e ']>'>" + listed(40'000, "<!ATTLIST X a", " CDATA '1'>"), "<X/>"),
         XmlProblem::Kind::TooLong},
        {"references in a text", withType(longEntity, "<X>" + manyReferences + "</X>"),
         XmlProblem::Kind::NotWellFormed},
        {"references in an attribute", withType(longEntity, "<X a='" + manyReferences + "'/>"),
         XmlProblem::Kind::NotWellFormed},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        QElapsedTimer clock;
        clock.start();
        const Outcome outcome = Normalise(test.document);
        ASSERT_TRUE(std::holds_alternative<XmlProblem>(outcome));
        EXPECT_EQ(static_cast<int>(std::get<XmlProblem>(outcome).kind), static_cast<int>(test.kind));
        EXPECT_LT(clock.elapsed(), 3000) << "unguarded, the parser takes minutes for some of these";
    }
}

} // namespace

} // namespace Hesperin
