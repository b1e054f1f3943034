#include "localisation/titles.h"

#include "system/version_record.h"
#include "text/numbers.h"

#include <QStringBuilder>

namespace Hesperin {

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
    const double power = AverageOf(powers.PowerRolvane, powers.PowerHesperin);
    const double experience =
        AverageOf(ExpHesperinOf(powers.PowerHesperin, tier), figures.ExpRolvane);
    const double growth = AverageOf(figures.GrowthHesperin, figures.GrowthRolvane);
    const double gold = AverageOf(figures.CostHesperin, figures.CostRolvane);
    using Digits = WholeDigits;
    return VersionRecord::TitleAndVersion() % messages.SumCreature % name % messages.SumPower %
           Digits(file.FilePower).View() % u'{' % Digits(power).View() % messages.SumExperience %
           Digits(file.FileExperience).View() % u'{' % Digits(RoundTo16Bits(experience)).View() %
           messages.SumGrowth % Digits(file.FileGrowth).View() % u'{' % Digits(growth).View() %
           messages.SumGold % Digits(file.FileGold).View() % u'{' % Digits(gold).View() % u"}]";
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
