#include "localisation/languages.h"
#include "reports/calc_report.h"
#include "reports/json.h"
#include "support/cases_file.h"
#include "system/version_record.h"

#include <QDir>
#include <QJsonDocument>

namespace Hesperin {

namespace {

TEST(CalcReport, TellsAFileAsATableAndAsJson) {
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(TALMIR_SOURCE_DIR "/tests/data/reports")); // so that no path is told
    ExpectCases("reports/calc.txt", [](const QString& act) {
        CalcReport report = CalculateFile(act.section(' ', 2), act.section(' ', 1, 1) == "RU" ? Russian : English);
        if (act.startsWith("zero")) { // which no file can reach
            report.evaluation.powers.PowerRolvane = 0;
            report.evaluation.figures.reset();
            report.evaluation.advice.reset();
        }
        const QJsonObject object = CalcJson(report);
        EXPECT_EQ(QJsonDocument::fromJson(JsonLine(object)).object(), object);
        EXPECT_FALSE(JsonLine(object).contains('\n'));
        const QString told = act.contains("json") ? QString(QJsonDocument(object).toJson()) : CalcTable(report);
        return QString(told).replace(VersionRecord::TitleAndVersion(), "TITLE");
    });
    QDir::setCurrent(before);
}

} // namespace

} // namespace Hesperin
