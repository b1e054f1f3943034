#include "cli/calc_report.h"

#include "catalogues/ability_catalogue.h"
#include "engine/formulas.h"
#include "engine/numbers.h"

#include <QJsonArray>

#include <array>

namespace Hesperin {

namespace {

/// One kind of figure by both methods, as an average, and as the file has it.
struct FigureRow {
    const char* key;
    const char* fileKey;
    const char* heading;
    double rolvane;
    double hesperin;
    double average;
    int inFile;
};

/// A run that found a zero Power computed nothing behind it.
bool Stopped(const SharedState& state) {
    return state.PowerRolvane == 0;
}

std::array<FigureRow, 4> Rows(const SharedState& state) {
    return {{
        {"power", "power", "Power", state.PowerRolvane, state.PowerHesperin, state.PowerAverage,
         state.FilePower},
        {"experience", "experience", "Experience", static_cast<double>(state.ExpRolvane),
         ExpHesperinOf(state.PowerHesperin, state.Tier), static_cast<double>(state.ExpAverage),
         state.FileExperience},
        {"growth", "growth", "Growth", static_cast<double>(state.GrowthRolvane),
         static_cast<double>(state.GrowthHesperin), static_cast<double>(state.GrowthAverage),
         state.FileGrowth},
        {"cost", "gold", "Gold", state.CostRolvane, state.CostHesperin, state.CostAverage,
         state.FileGold},
    }};
}

QJsonValue Unless(bool stopped, double figure) {
    return stopped ? QJsonValue() : QJsonValue(figure);
}

QJsonObject FiguresJson(const SharedState& state, bool opened) {
    const bool stopped = !opened || Stopped(state);
    QJsonObject figures;
    if (!opened) {
        for (const char* key : {"power", "experience", "growth", "cost"})
            figures.insert(QLatin1String(key),
                           QJsonObject{{"rolvane", {}}, {"hesperin", {}}, {"average", {}}});
        return figures;
    }
    for (const FigureRow& row : Rows(state)) {
        const bool isPower =
            row.key == QLatin1String("power"); // the two Powers stand before the stop
        figures.insert(QLatin1String(row.key),
                       QJsonObject{{"rolvane", Unless(stopped && !isPower, row.rolvane)},
                                   {"hesperin", Unless(stopped && !isPower, row.hesperin)},
                                   {"average", Unless(stopped, row.average)}});
    }
    return figures;
}

QJsonObject InFileJson(const SharedState& state, bool opened) {
    QJsonObject inFile;
    for (const char* key : {"power", "experience", "growth", "gold"})
        inFile.insert(QLatin1String(key), {});
    if (opened)
        for (const FigureRow& row : Rows(state))
            inFile.insert(QLatin1String(row.fileKey), row.inFile);
    return inFile;
}

/// The parameters as Calculate has corrected them; null while there are none.
QJsonObject ParametersJson(const Program& program, bool opened) {
    const SharedState& state = program.state;
    const auto number = [opened](std::int16_t value) { return Unless(!opened, value); };
    const auto flag = [opened](bool value) { return opened ? QJsonValue(value) : QJsonValue(); };
    return {
        {"Attack", number(state.Attack)},
        {"Defence", number(state.Defence)},
        {"MinDam", number(state.MinDam)},
        {"MaxDam", number(state.MaxDam)},
        {"Health", number(state.Health)},
        {"Speed", number(state.Speed)},
        {"Initiative", number(state.Initiative)},
        {"Tier", number(state.Tier)},
        {"Upgrade", flag(state.UpgradeFactor != 1.0F)},
        {"Shooter", flag(program.form.Abilities(Ability::Shooter).Ticked())},
    };
}

QStringList TickedCaptions(const MainForm& form) {
    QStringList captions;
    for (const CheckBox& box : form.Abilities)
        if (box.Ticked())
            captions.append(box.Caption());
    return captions;
}

template <typename Boxes, typename Selectors>
QJsonArray KnownJson(const Boxes& boxes, const Selectors& selectors) {
    QJsonArray known;
    for (const CheckBox& box : boxes)
        if (box.Ticked())
            known.append(QJsonObject{{"token", box.Caption()},
                                     {"mastery", selectors(box.ArrayIndex()).Value()}});
    return known;
}

template <typename Boxes, typename Selectors>
QStringList KnownText(const Boxes& boxes, const Selectors& selectors) {
    QStringList known;
    for (const CheckBox& box : boxes)
        if (box.Ticked())
            known.append(box.Caption() +
                         QStringLiteral(" (%1)").arg(selectors(box.ArrayIndex()).Value()));
    return known;
}

QString ListLine(const char* heading, const QStringList& entries) {
    return QStringLiteral("  %1: %2\n")
        .arg(QLatin1String(heading),
             entries.isEmpty() ? QStringLiteral("none") : entries.join(QLatin1String(", ")));
}

} // namespace

QJsonObject CalcJson(const QString& file, bool opened, const Program& program,
                     const CliPlatform& platform) {
    const SharedState& state = program.state;
    const MainForm& form = program.form;
    const bool stopped = !opened || Stopped(state);
    QJsonObject object{
        {"file", file},
        {"ok", opened},
        {"name", opened ? QJsonValue(state.CreatureName) : QJsonValue()},
        {"tier", Unless(!opened, state.Tier)},
        {"advised_tier", Unless(stopped, state.AdvisedTier)},
        {"figures", FiguresJson(state, opened)},
        {"in_file", InFileJson(state, opened)},
        {"parameters", ParametersJson(program, opened)},
        {"ability_product",
         opened ? QJsonValue(FloatText(state.AbilityProduct).toDouble()) : QJsonValue()},
        {"abilities", opened ? QJsonArray::fromStringList(TickedCaptions(form)) : QJsonArray()},
        {"spells", opened ? KnownJson(form.Spells, form.soq) : QJsonArray()},
        {"specabilities", opened ? KnownJson(form.Specabilities, form.saz) : QJsonArray()},
        {"messages", MessagesJson(platform.messages)},
        {"title", opened ? QJsonValue(form.frmMain.Caption()) : QJsonValue()},
    };
    if (!opened)
        object.insert(QStringLiteral("error"), program.failure);
    return object;
}

QString CalcTable(const QString& file, const Program& program, const CliPlatform& platform) {
    const SharedState& state = program.state;
    const MainForm& form = program.form;
    const QString upgraded = state.UpgradeFactor == 1.0F ? QString() : QStringLiteral(", upgraded");
    QString text = QStringLiteral("%1: %2, tier %3%4\n")
                       .arg(file, state.CreatureName, QString::number(state.Tier), upgraded);
    text += QStringLiteral("  %1%2%3%4%5\n")
                .arg(QString(), -12)
                .arg(QStringLiteral("Rolvane"), 10)
                .arg(QStringLiteral("Hesperin"), 10)
                .arg(QStringLiteral("Average"), 10)
                .arg(QStringLiteral("In file"), 10);
    const auto cell = [&state](const FigureRow& row, double figure, bool beforeStop) {
        const bool reached = !Stopped(state) || (beforeStop && row.key == QLatin1String("power"));
        return reached ? WholeText(figure) : QStringLiteral("-");
    };
    for (const FigureRow& row : Rows(state))
        text += QStringLiteral("  %1%2%3%4%5\n")
                    .arg(QLatin1String(row.heading), -12)
                    .arg(cell(row, row.rolvane, true), 10)
                    .arg(cell(row, row.hesperin, true), 10)
                    .arg(cell(row, row.average, false), 10)
                    .arg(row.inFile, 10);
    text += ListLine("Abilities", TickedCaptions(form));
    text += QStringLiteral("  Product of their values: %1\n").arg(FloatText(state.AbilityProduct));
    text += ListLine("Spells (mastery 0 to 4)", KnownText(form.Spells, form.soq));
    text += ListLine("Special abilities (mastery 0 to 4)", KnownText(form.Specabilities, form.saz));
    for (const ShownMessage& message : platform.messages)
        text +=
            QStringLiteral("  %1 %2\n")
                .arg(message.icon == BoxIcon::Critical ? QLatin1String("!") : QLatin1String("i"),
                     QString(message.text).replace(u'\n', QLatin1String("\n    ")));
    return text;
}

} // namespace Hesperin
