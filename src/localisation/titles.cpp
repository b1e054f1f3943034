#include "localisation/titles.h"

#include "system/version_record.h"
#include "text/numbers.h"

#include <QStringBuilder>

namespace Hesperin {

namespace {

/// One figure of the title: what the open file has, and in braces what was computed.
void AppendPair(QString& title, const QString& heading, std::int16_t inFile, double computed) {
    title +=
        heading % WholeDigits(std::int64_t{inFile}).View() % u'{' % WholeDigits(computed).View();
}

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
    QString title;
    title.reserve(160);
    title += VersionRecord::TitleAndVersion() % messages.SumCreature % name;
    AppendPair(title, messages.SumPower, file.FilePower,
               AverageOf(powers.PowerRolvane, powers.PowerHesperin));
    AppendPair(
        title, messages.SumExperience, file.FileExperience,
        RoundTo16Bits(AverageOf(ExpHesperinOf(powers.PowerHesperin, tier), figures.ExpRolvane)));
    AppendPair(title, messages.SumGrowth, file.FileGrowth,
               AverageOf(figures.GrowthHesperin, figures.GrowthRolvane));
    AppendPair(title, messages.SumGold, file.FileGold,
               AverageOf(figures.CostHesperin, figures.CostRolvane));
    title += u"}]";
    return title;
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
