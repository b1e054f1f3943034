#include "localisation/titles.h"

#include "system/version_record.h"
#include "text/numbers.h"

#include <QStringBuilder>

namespace Hesperin {

namespace {

/// One figure of the title: what the open file has, and in braces what was computed.
struct Pair {
    Pair(std::int16_t ofFile, double figure) : inFile(std::int64_t{ofFile}), computed(figure) {}

    WholeDigits inFile;
    WholeDigits computed;
};

} // namespace

QString FileTitle(const QString& name, const FileFigures& file) {
    return VersionRecord::TitleAndVersion() + QLatin1String(" [Creature: ") + name +
           QStringLiteral(", Power=%1, Experience=%2, Growth=%3, Cost=%4]")
               .arg(file.FilePower)
               .arg(file.FileExperience)
               .arg(file.FileGrowth)
               .arg(file.FileGold);
}

QString SummaryTitle(const Messages& messages, const QString& name, const FileFigures& file,
                     std::int16_t tier, const Powers& powers, const Figures& figures) {
    const Pair power(file.FilePower, AverageOf(powers.PowerRolvane, powers.PowerHesperin));
    const Pair experience(
        file.FileExperience,
        RoundTo16Bits(AverageOf(ExpHesperinOf(powers.PowerHesperin, tier), figures.ExpRolvane)));
    const Pair growth(file.FileGrowth, AverageOf(figures.GrowthHesperin, figures.GrowthRolvane));
    const Pair gold(file.FileGold, AverageOf(figures.CostHesperin, figures.CostRolvane));
    const QChar brace(u'{');
    return VersionRecord::TitleAndVersion() % messages.SumCreature % name %          //
           messages.SumPower % power.inFile.View() % brace % power.computed.View() % //
           messages.SumExperience % experience.inFile.View() % brace %
           experience.computed.View() %                                                 //
           messages.SumGrowth % growth.inFile.View() % brace % growth.computed.View() % //
           messages.SumGold % gold.inFile.View() % brace % gold.computed.View() %
           QStringView(u"}]");
}

QString SummaryTitleIn(const Messages& to, const Messages& from, QString title) {
    QString given = title;
    const qsizetype begin = VersionRecord::TitleAndVersion().size();
    qsizetype end = title.size();
    // From the back, since the name may hold anything.
    for (const auto words : {&Messages::SumGold, &Messages::SumGrowth, &Messages::SumExperience,
                             &Messages::SumPower}) {
        const qsizetype place = QStringView(title).left(end).lastIndexOf(from.*words);
        if (place < begin || (from.*words).isEmpty())
            return given;
        title.replace(place, (from.*words).size(), to.*words);
        end = place;
    }
    if (from.SumCreature.isEmpty() || !QStringView(title).mid(begin).startsWith(from.SumCreature))
        return given;
    return title.replace(begin, from.SumCreature.size(), to.SumCreature);
}

} // namespace Hesperin
