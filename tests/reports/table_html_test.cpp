#include "localisation/languages.h"
#include "reports/table_html.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

namespace Hesperin {

namespace {

/// What is found in a page: its elements, the texts of some, and what might lead outside or run.
struct ReadPage {
    QStringList cells;  ///< of the creatures, row after row
    QStringList titles; ///< of the points
    QStringList refused;
    QSet<QString> elements;
    QSet<QString> attributes;
    QString error;
};

ReadPage ReadMain(const QByteArray& html) {
    static const QRegularExpression openInput("(<input [^>]*)>");
    const qsizetype start = html.indexOf("<main>");
    const QString content = QString::fromUtf8(html.sliced(start, html.indexOf("</main>") + 7 - start));
    QXmlStreamReader reader(QString(content).replace(openInput, "\\1/>"));
    ReadPage page;
    bool creatures = false;
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::StartElement) {
            const QString name = reader.name().toString();
            page.elements.insert(name);
            for (const QXmlStreamAttribute& attribute : reader.attributes())
                page.attributes.insert(attribute.name().toString());
            if (name == u"table")
                creatures = reader.attributes().value("id") == u"creatures";
            else if (name == u"td" && creatures)
                page.cells.append(reader.readElementText(QXmlStreamReader::IncludeChildElements));
            else if (name == u"title")
                page.titles.append(reader.readElementText());
            else if (name == u"li")
                page.refused.append(reader.readElementText(QXmlStreamReader::IncludeChildElements));
        }
    page.error = reader.errorString();
    return page;
}

QString& TextOf(SurveyRow& row, Column column) { return row.texts[static_cast<std::size_t>(column)]; }

SurveyRow HostileRow(const QString& text, double deviation) {
    SurveyRow row;
    for (const Column column : {Column::File, Column::Name, Column::Town, Column::Gold, Column::Abilities})
        TextOf(row, column) = text;
    row.tier = 3;
    row.scale = 1;
    row.deviation = deviation;
    return row;
}

TEST(TableHtml, ShowsEveryTextAsItStandsAndRunsNone) {
    const QString hostile[] = {"<script>alert(1)</script>",
                               "\"><img src=x onerror=alert(1)>",
                               "' onmouseover='alert(1)",
                               "</title></svg></td></table></main><b>",
                               "]]>--><!--",
                               "&lt;b&gt; &amp; &#60;",
                               "</script><style>*{display:none}</style>",
                               "a\nb\tc",
                               "=1+1",
                               QString::fromUtf8("имя 龍 \U0001F409"),
                               QString(5000, 'W')};
    Survey survey;
    for (const QString& text : hostile) {
        survey.rows.push_back(HostileRow(text, survey.rows.size() % 2 == 0 ? 60 : -60));
        survey.scale.Add(3, Figure::Power, 1, 1);
        survey.refused.push_back({text, {Error::What::SystemSays, text}});
    }
    SurveyRow wrong = HostileRow("x", 0);
    wrong.deviation.reset();
    wrong.problem = Error{Error::What::WrongRoot, "<i>"};
    survey.rows.push_back(wrong);
    const auto columns = static_cast<qsizetype>(Column::Count);

    for (const Language language : {English, Russian}) {
        const Messages& messages = MessagesIn(language);
        const QByteArray html = TableHtml(survey, messages);
        EXPECT_EQ(html.count("<script"), 1);
        EXPECT_EQ(html.count("<style"), 1);
        EXPECT_TRUE(html.contains(language == English ? "<html lang=\"en\">" : "<html lang=\"ru\">"));
        const ReadPage page = ReadMain(html);
        EXPECT_EQ(page.error, "");
        EXPECT_FALSE(page.elements.intersects({"script", "img", "style", "i", "a", "link", "object"}));
        for (const QString& attribute : page.attributes)
            EXPECT_FALSE(attribute.startsWith("on") || QStringList({"src", "href", "style"}).contains(attribute))
                << attribute.toStdString();
        ASSERT_EQ(page.cells.size(), columns * static_cast<qsizetype>(survey.rows.size()));
        for (qsizetype at = 0; at < page.cells.size(); ++at)
            EXPECT_EQ(page.cells[at], CellText(survey.rows[static_cast<std::size_t>(at / columns)],
                                               static_cast<Column>(at % columns), messages));
        ASSERT_EQ(page.refused.size(), std::ssize(hostile));
        for (qsizetype at = 0; at < page.refused.size(); ++at)
            EXPECT_EQ(page.refused[at].count(hostile[at]), 2) << at; // its path and what the system says
        EXPECT_EQ(page.titles.size(), 3 * std::ssize(hostile));      // for three widths
        EXPECT_TRUE(page.titles.contains("<script>alert(1)</script>: +60.0 %"));
    }
}

TEST(TableHtml, ShowsControlCharactersAndReplacesWhatNoPageMayHold) {
    Survey survey;
    survey.rows.push_back(HostileRow(QString::fromUtf16(u"a\u0001\r\u0085\uffff\u007f"), 0));
    const ReadPage page = ReadMain(TableHtml(survey, MessagesIn(English)));
    EXPECT_EQ(page.error, "");
    EXPECT_EQ(page.cells.value(1), QString::fromUtf16(u"a\u2401\u240d\ufffd\ufffd\ufffd"));
}

/// The policy lets run what stands in the page and nothing else.
TEST(TableHtml, AllowsItsOwnStyleAndScriptAlone) {
    const QByteArray html = TableHtml({}, MessagesIn(English));
    EXPECT_EQ(ReadMain(html).error, "");
    const auto hashOf = [&](const QByteArray& element) {
        const qsizetype start = html.indexOf('<' + element + '>') + element.size() + 2;
        const QByteArray content = html.sliced(start, html.indexOf("</" + element + '>', start) - start);
        return "'sha256-" + QCryptographicHash::hash(content, QCryptographicHash::Sha256).toBase64() + "'";
    };
    EXPECT_TRUE(html.contains("content=\"default-src 'none'; style-src " + hashOf("style") + "; script-src " +
                              hashOf("script") + "; base-uri 'none'; form-action 'none'\""));
    for (const char* reference : {"http:", "https:", "src=", "href=", "url(", "@import"})
        EXPECT_FALSE(html.contains(reference)) << reference;
}

} // namespace

} // namespace Hesperin
