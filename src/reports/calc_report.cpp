#include "reports/calc_report.h"

#include "catalogue/ability_catalogue.h"
#include "creature_files/document.h"
#include "localisation/captions.h"
#include "localisation/error_text.h"
#include "localisation/judgement_text.h"
#include "localisation/titles.h"
#include "reports/json.h"
#include "reports/reading_text.h"
#include "text/numbers.h"
#include "text/plain_lines.h"

#include <optional>

namespace Hesperin {

namespace {

/// One kind of figure: how the two forms name it, and what the file has of it.
struct FigureRow {
    Figure figure;
    const char* key;
    const char* fileKey;
    const char* heading;
    std::int16_t FileFigures::*inFile;
};

constexpr FigureRow FigureRows[] = {
    {Figure::Power, "power", "power", "Power", &FileFigures::FilePower},
    {Figure::Experience, "experience", "experience", "Experience", &FileFigures::FileExperience},
    {Figure::Growth, "growth", "growth", "Growth", &FileFigures::FileGrowth},
    {Figure::Cost, "cost", "gold", "Gold", &FileFigures::FileGold},
};

struct MethodColumn {
    Method method;
    const char* key;
    const char* heading;
};

constexpr MethodColumn MethodColumns[] = {
    {Method::Rolvane, "rolvane", "Rolvane"},
    {Method::Hesperin, "hesperin", "Hesperin"},
    {Method::Average, "average", "Average"},
};

std::optional<double> Reached(const CalcReport& report, Method method, Figure figure) {
    return report.refusal ? std::nullopt : ResultReached(report.evaluation, method, figure);
}

QJsonObject FiguresJson(const CalcReport& report) {
    QJsonObject figures;
    for (const FigureRow& row : FigureRows) {
        QJsonObject methods;
        for (const MethodColumn& column : MethodColumns)
            methods.insert(QLatin1String(column.key),
                           NumberOrNull(Reached(report, column.method, row.figure)));
        figures.insert(QLatin1String(row.key), methods);
    }
    return figures;
}

QJsonObject InFileJson(const CalcReport& report) {
    QJsonObject inFile;
    for (const FigureRow& row : FigureRows)
        inFile.insert(QLatin1String(row.fileKey),
                      report.refusal ? QJsonValue() : QJsonValue(report.read.figures.*row.inFile));
    return inFile;
}

QJsonObject ParametersJson(const CalcReport& report) {
    const Parameters& parameters = report.evaluation.validated.parameters;
    const auto orNull = [&report](auto value) {
        return report.refusal ? QJsonValue() : QJsonValue(value);
    };
    QJsonObject object;
    for (std::size_t i = 0; i < ParameterRanges.items.size(); ++i)
        object.insert(ParameterRanges.items[i].name.toString(),
                      orNull(parameters[static_cast<Parameter>(i)]));
    object.insert(QStringLiteral("Upgrade"), orNull(parameters.UpgradeFactor != PlainFactor));
    object.insert(QStringLiteral("Shooter"), orNull(parameters.Shooter));
    return object;
}

QStringList AbilityNames(const Creature& creature) {
    QStringList names;
    for (std::size_t i = 1; i < creature.Abilities.size(); ++i)
        if (creature.Abilities[i])
            names.append(QString::fromUtf16(AbilityCatalogue[i].token));
    return names;
}

template <typename Skills, typename Tokens, typename Take>
void ForEachKnown(const Skills& skills, const Tokens& tokens, Take take) {
    for (std::size_t i = 0; i < skills.size(); ++i)
        if (skills[i].known)
            take(QString::fromUtf16(tokens[i]), skills[i].mastery);
}

template <typename Skills, typename Tokens>
QJsonArray KnownJson(const Skills& skills, const Tokens& tokens) {
    QJsonArray known;
    ForEachKnown(skills, tokens, [&known](const QString& token, std::int16_t mastery) {
        known.append(QJsonObject{{"token", token}, {"mastery", mastery}});
    });
    return known;
}

template <typename Skills, typename Tokens>
QStringList KnownText(const Skills& skills, const Tokens& tokens) {
    QStringList known;
    ForEachKnown(skills, tokens, [&known](const QString& token, std::int16_t mastery) {
        known.append(token + QStringLiteral(" (%1)").arg(mastery));
    });
    return known;
}

QString ListLine(const char* heading, const QStringList& entries) {
    return QStringLiteral("  %1: %2\n")
        .arg(QLatin1String(heading),
             entries.isEmpty() ? QStringLiteral("none") : entries.join(QLatin1String(", ")));
}

void TellReading(CalcReport& report, const Messages& messages, std::uint8_t languageId) {
    const auto show = [&](BoxIcon icon, const QString& text) {
        report.messages.push_back({icon, messages.WarningTitle, text});
    };
    const Evaluation& evaluation = report.evaluation;
    if (const QString odd = ReadingText(messages, report.read); !odd.isEmpty())
        show(BoxIcon::Information, odd);
    const auto caption = [languageId](QLatin1String control) {
        return CaptionIn(languageId, control);
    };
    for (const Correction& correction : evaluation.validated.corrections)
        show(BoxIcon::Critical, CorrectionText(messages, caption, correction));
    const std::int16_t tier = evaluation.validated.parameters.Tier;
    if (!evaluation.advice)
        show(BoxIcon::Critical, messages.MsgZeroPower);
    else if (evaluation.advice->AdvisedTier != tier)
        show(BoxIcon::Information, TierAdviceText(messages, tier, evaluation.advice->AdvisedTier));
}

} // namespace

CalcReport CalculateFile(const QString& path, std::uint8_t languageId) {
    const Messages& messages = MessagesIn(languageId);
    CalcReport report{path, {}, {}, {}, {}, {}, {}};
    const auto document = LoadCreatureDocument(path);
    if (!document) {
        report.refusal = document.Why();
        report.messages.push_back(
            {BoxIcon::Critical, messages.WarningTitle, ErrorText(messages, document.Why())});
        return report;
    }
    report.read = ReadCreatureText(document->text, EmptyCreature());
    report.name = report.read.ShownName();
    report.evaluation = Evaluate(EnteredOf(report.read.creature));
    TellReading(report, messages, languageId);
    const Evaluation& evaluation = report.evaluation;
    report.title = evaluation.figures ? SummaryTitle(messages, report.name, report.read.figures,
                                                     evaluation.validated.parameters.Tier,
                                                     evaluation.powers, *evaluation.figures)
                                      : FileTitle(report.name, report.read.figures);
    return report;
}

QJsonObject CalcJson(const CalcReport& report) {
    const bool opened = !report.refusal;
    const Evaluation& evaluation = report.evaluation;
    const Creature& creature = report.read.creature;
    const auto orNull = [opened](auto value) { return opened ? QJsonValue(value) : QJsonValue(); };
    QJsonObject object{
        {"file", report.file},
        {"ok", opened},
        {"name", orNull(report.name)},
        {"tier", orNull(evaluation.validated.parameters.Tier)},
        {"advised_tier",
         evaluation.advice ? QJsonValue(evaluation.advice->AdvisedTier) : QJsonValue()},
        {"figures", FiguresJson(report)},
        {"in_file", InFileJson(report)},
        {"parameters", ParametersJson(report)},
        {"ability_product",
         orNull(FloatText(evaluation.validated.parameters.AbilityProduct).toDouble())},
        {"abilities", QJsonArray::fromStringList(AbilityNames(creature))},
        {"spells", KnownJson(creature.Spells, SpellToken)},
        {"specabilities", KnownJson(creature.Specabilities, SpecabilityToken)},
        {"messages", MessagesJson(report.messages)},
        {"title", orNull(report.title)},
    };
    if (!opened)
        object.insert(QStringLiteral("error"), report.messages.front().text);
    return object;
}

QString CalcTable(const CalcReport& report) {
    const Creature& creature = report.read.creature;
    const Parameters& parameters = report.evaluation.validated.parameters;
    const QString upgraded =
        parameters.UpgradeFactor == PlainFactor ? QString() : QStringLiteral(", upgraded");
    QString text = QStringLiteral("%1: %2, tier %3%4\n")
                       .arg(Printable(report.file), Printable(report.name),
                            QString::number(parameters.Tier), upgraded);
    text += QStringLiteral("  %1").arg(QString(), -12);
    for (const MethodColumn& column : MethodColumns)
        text += QStringLiteral("%1").arg(QLatin1String(column.heading), 10);
    text += QStringLiteral("%1\n").arg(QLatin1String("In file"), 10);
    for (const FigureRow& row : FigureRows) {
        text += QStringLiteral("  %1").arg(QLatin1String(row.heading), -12);
        for (const MethodColumn& column : MethodColumns) {
            const auto figure = Reached(report, column.method, row.figure);
            text += QStringLiteral("%1").arg(figure ? WholeText(*figure) : QStringLiteral("-"), 10);
        }
        text += QStringLiteral("%1\n").arg(report.read.figures.*row.inFile, 10);
    }
    text += ListLine("Abilities", AbilityNames(creature));
    text +=
        QStringLiteral("  Product of their values: %1\n").arg(FloatText(parameters.AbilityProduct));
    text += ListLine("Spells (mastery 0 to 4)", KnownText(creature.Spells, SpellToken));
    text += ListLine("Special abilities (mastery 0 to 4)",
                     KnownText(creature.Specabilities, SpecabilityToken));
    for (const ShownMessage& message : report.messages)
        text +=
            QStringLiteral("  %1 %2\n")
                .arg(message.icon == BoxIcon::Critical ? QLatin1String("!") : QLatin1String("i"),
                     QString(message.text).replace(u'\n', QLatin1String("\n    ")));
    return text;
}

} // namespace Hesperin
