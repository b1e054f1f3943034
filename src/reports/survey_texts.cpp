#include "reports/survey_texts.h"

#include "catalogue/ability_catalogue.h"
#include "creature_files/elements.h"
#include "text/escape.h"

#include <vector>

namespace Hesperin {

namespace {

/// A column whose heading is the name of an element.
struct ElementColumn {
    QString name;
    QString parent;
    Column column;
};

std::vector<ElementColumn> ElementColumns() {
    std::vector<ElementColumn> columns{
        {QStringLiteral("CreatureTown"), {}, Column::Town},
        {QStringLiteral("Item"), HeadingOf(Column::Abilities), Column::Abilities}};
    for (auto i = static_cast<std::size_t>(Column::CreatureTier);
         i < static_cast<std::size_t>(Column::Abilities); ++i) {
        const auto column = static_cast<Column>(i);
        const QString name = HeadingOf(column);
        for (const Element& element : Elements)
            if (element.name == name)
                columns.push_back({name, element.parent.toString(), column});
    }
    return columns;
}

/// The few whose names are of that length: every tag of a document asks.
const std::vector<ElementColumn>& ColumnsOfLength(qsizetype length) {
    constexpr std::size_t longest = 16;
    static const auto all = [] {
        std::array<std::vector<ElementColumn>, longest + 1> byLength;
        for (const ElementColumn& column : ElementColumns())
            byLength.at(static_cast<std::size_t>(column.name.size())).push_back(column);
        return byLength;
    }();
    return all[static_cast<std::size_t>(length) > longest ? 0 : static_cast<std::size_t>(length)];
}

QStringView WithoutPrefix(QStringView word, QStringView prefix) {
    return word.startsWith(prefix, Qt::CaseInsensitive) ? word.sliced(prefix.size()) : word;
}

/// Goes over the tags of a normalised text.
class TagScan {
public:
    TagScan(const QString& normalised, SurveyRow& target)
        : text(normalised), row(target), seen(TextColumns) {}

    void Run() {
        constexpr std::size_t levels = 3; // Creature, an element, an element in that
        QStringView open[levels];
        std::size_t depth = 0;
        qsizetype at = text.indexOf(u'\n'); // behind the declaration
        while ((at = text.indexOf(u'<', at)) >= 0) {
            if (text[at + 1] == u'/') {
                --depth;
                ++at;
                continue;
            }
            const qsizetype end = text.indexOf(u'>', at); // elsewhere it is a reference
            if (end < 0)
                return;
            if (text[end - 1] != u'/') {
                if (depth < levels)
                    open[depth] = NameAt(at + 1);
                if (depth == 1)
                    TakeContent(open[1], {}, end + 1);
                else if (depth == 2)
                    TakeContent(open[2], open[1], end + 1);
                ++depth;
            }
            at = end;
        }
    }

private:
    QStringView NameAt(qsizetype start) const {
        qsizetype end = start;
        while (text[end] != u'>' && text[end] != u' ')
            ++end;
        return text.sliced(start, end - start);
    }

    void TakeContent(QStringView name, QStringView parent, qsizetype start) {
        for (const ElementColumn& column : ColumnsOfLength(name.size()))
            if (column.name == name && column.parent == parent)
                return Take(column.column, ContentAt(start));
    }

    /// Empty where the element holds others.
    QString ContentAt(qsizetype start) const {
        const qsizetype end = text.indexOf(u'<', start);
        if (end < 0 || text[end + 1] != u'/')
            return {};
        const QStringView content = text.sliced(start, end - start).trimmed();
        return content.contains(u'&') ? Unescaped(content.toString()) : content.toString();
    }

    void Take(Column column, const QString& content) {
        QString& cell = row.Text(column);
        if (column == Column::Abilities) {
            const QStringView word = WithoutPrefix(content, AbilityPrefix);
            if (!cell.isEmpty() && !word.isEmpty())
                cell += u' ';
            cell += word;
            return;
        }
        const auto index = static_cast<std::size_t>(column);
        if (!seen[index])
            cell = column == Column::Town ? WithoutPrefix(content, u"TOWN_").toString() : content;
        seen[index] = true;
    }

    const QStringView text;
    SurveyRow& row;
    std::vector<bool> seen;
};

} // namespace

void ReadElementTexts(const QString& normalised, SurveyRow& row) {
    TagScan(normalised, row).Run();
    row.Text(Column::Abilities).squeeze();
}

} // namespace Hesperin
