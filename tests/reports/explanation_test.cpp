#include "localisation/languages.h"
#include "reports/explained_terms.h"
#include "reports/explanation_json.h"
#include "reports/explanation_text.h"
#include "reports/json.h"
#include "reports/solve_report.h"
#include "support/cases_file.h"
#include "support/expression.h"

#include "creature_files/document.h"
#include "creature_files/reader.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>

#include <random>

namespace Hesperin {

namespace {

/// The creature of a file with the values that `words` gives it: "Attack=70", "Tier=9".
Creature CreatureIn(const QString& file, const QStringList& words) {
    static const QMap<QString, NumberField> numbers{{"Shots", NumberField::Shots},   {"Attack", NumberField::Attack},
                                                    {"Health", NumberField::Health}, {"MinDam", NumberField::MinDam},
                                                    {"MaxDam", NumberField::MaxDam}, {"Defence", NumberField::Defence}};
    static const QMap<QString, ListField> lists{
        {"Speed", ListField::Speed}, {"Initiative", ListField::Initiative}, {"Tier", ListField::Tier}};
    Creature creature = ReadCreatureText(LoadCreatureDocument(file)->text, EmptyCreature()).creature;
    for (const QString& word : words) {
        const QString name = word.section('=', 0, 0);
        if (numbers.contains(name))
            creature.Numbers[numbers[name]] = word.section('=', 1);
        else
            creature.Choices[lists.value(name)].text = word.section('=', 1);
    }
    return creature;
}

/// Of a creature with a Power of 0, which no file can reach.
Explanation WithoutPower() {
    Explanation explanation{"", "Ghost", {}, {}, {}};
    Record record;
    const Creature empty = EmptyCreature();
    EnteredParameters entered = EnteredOf(empty);
    entered.Attack = entered.Defence = entered.Health = entered.MinDam = entered.MaxDam = u"4";
    record.Step("product", entered.AbilityProduct, 0.008F); // 0.73 by Rolvane, which counts as 0
    explanation.evaluation = Evaluate(entered, record);
    explanation.terms = record.Terms();
    return explanation;
}

/// The twelve results by the names of their terms.
QMap<QString, ResultKey> Results() {
    QMap<QString, ResultKey> results;
    for (const Method method : {Method::Rolvane, Method::Hesperin, Method::Average})
        for (const Figure figure : {Figure::Power, Figure::Experience, Figure::Growth, Figure::Cost})
            results.insert(TermOfResult({method, figure}), {method, figure});
    return results;
}

TEST(Explanation, TellsEveryStepInBothLanguages) {
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(TALMIR_SOURCE_DIR "/tests/data/reports")); // so that no path is told
    ExpectCases("reports/explain.txt", [](const QString& act) {
        const QStringList words = act.split(' ');
        const std::uint8_t language = words[1] == "RU" ? Russian : English;
        if (words[0] == "solve") {
            const SolveWish wish{*ReadSolveGoal(words[3])};
            const auto report = SolveFile(words[2], wish);
            return SolveText(*report, language) + '\n' + JsonLine(SolveJson(*report));
        }
        const Explanation explanation =
            words[2] == "nothing" ? WithoutPower() : Explain(CreatureIn(words[2], words.mid(3)), "Bog_wyrm", words[2]);
        if (words[0] == "json") {
            QJsonObject object = QJsonDocument::fromJson(ExplanationJson(explanation)).object();
            object.remove("terms");
            return QString(JsonLine(object));
        }
        if (const auto results = Results(); results.contains(words[0]))
            return ExplanationText(explanation, language, results[words[0]]);
        return words[0] == "text" ? ExplanationText(explanation, language) : ExplanationMarkdown(explanation, language);
    });
    QDir::setCurrent(before);
}

/// Reckons every expression of the document anew: nothing but the document is needed for it. Gives the terms.
QHash<QString, double> ReckonAnew(const QJsonObject& document) {
    QHash<QString, double> known;
    const QJsonObject inputs = document["inputs"].toObject();
    for (auto input = inputs.begin(); input != inputs.end(); ++input)
        known.insert(input.key(), input.value().toDouble());
    static const QRegularExpression id("^[A-Za-z]([A-Za-z0-9]|_(?!_|$))*$");
    for (const QJsonValue& value : document["terms"].toArray()) {
        const QJsonObject term = value.toObject();
        const QString name = term["id"].toString();
        EXPECT_TRUE(id.match(name).hasMatch() && !known.contains(name)) << name.toStdString();
        // Every bit counts: what is off by one could be cut to another whole number.
        EXPECT_EQ(ValueOfExpression(term["expression"].toString(), known), term["value"].toDouble())
            << name.toStdString() << " = " << term["expression"].toString().toStdString();
        known.insert(name, term["value"].toDouble());
    }
    return known;
}

void ExpectResults(const Explanation& explanation) {
    const QJsonObject document = QJsonDocument::fromJson(ExplanationJson(explanation)).object();
    const QHash<QString, double> terms = ReckonAnew(document);
    const Evaluation& evaluation = explanation.evaluation;
    const char* const figures[][2] = {
        {"power", "power"}, {"experience", "exp"}, {"growth", "growth"}, {"cost", "cost"}};
    const char* const methods[] = {"rolvane", "hesperin", "average"};
    for (int f = 0; f < 4; ++f)
        for (int m = 0; m < 3; ++m) {
            const QJsonValue result = document["results"][methods[m]][figures[f][0]];
            const QString id = QString("%1_%2").arg(figures[f][1], methods[m]);
            EXPECT_EQ(terms.contains(id), result.isDouble()) << id.toStdString();
            if (!result.isDouble())
                continue;
            EXPECT_EQ(result.toDouble(), terms[id]) << id.toStdString();
            EXPECT_EQ(result.toDouble(), ResultOf(evaluation.powers, evaluation.figures.value_or(Figures()),
                                                  static_cast<Method>(m), static_cast<Figure>(f)));
        }
}

/// What a result is said to rest on is enough to reckon it anew, and no input without a part in it is among it.
void ExpectEnoughBehindEachResult(const Explanation& explanation) {
    const QJsonObject document = QJsonDocument::fromJson(ExplanationJson(explanation)).object();
    for (const auto& [id, key] : Results().asKeyValueRange()) {
        const QSet<QString> behind = TermsBehind(explanation, key);
        QJsonObject part = document;
        QJsonArray terms;
        for (const QJsonValue& term : document["terms"].toArray())
            if (behind.contains(term["id"].toString()))
                terms.append(term);
        part["terms"] = terms;
        EXPECT_TRUE(ReckonAnew(part).contains(id)) << id.toStdString();
        EXPECT_EQ(behind.contains("Tier"), key.figure != Figure::Power) << id.toStdString();
        EXPECT_EQ(behind.contains("Shooter"), behind.contains("power_rolvane")) << id.toStdString();
    }
}

/// Any creature within the ranges and a little beyond.
Creature RandomCreature(std::mt19937& random) {
    const auto below = [&random](int end) { return std::uniform_int_distribution(0, end - 1)(random); };
    Creature creature = EmptyCreature();
    const std::pair<NumberField, int> numbers[] = {{NumberField::Attack, 53},
                                                   {NumberField::Defence, 53},
                                                   {NumberField::Health, below(2) == 0 ? 420 : 20},
                                                   {NumberField::MinDam, 30},
                                                   {NumberField::MaxDam, 97}};
    for (const auto& [field, end] : numbers)
        creature.Numbers[field] = QString::number(below(end));
    for (const auto& [list, end] : {std::pair(ListField::Speed, 11), {ListField::Initiative, 22}})
        creature.Choices[list].text = QString::number(below(end));
    creature.Choices[ListField::Tier].text = QString::number(1 + below(8));
    creature.Choices[ListField::Upgrade].text = below(2) == 0 ? "True" : "False";
    for (int ticks = below(12); ticks > 0; --ticks)
        creature.Set(1 + below(Ability::Count), true);
    creature.Set(Ability::Shooter, below(2) == 0);
    return creature;
}

TEST(Explanation, EveryExpressionGivesItsValueBitForBit) {
    const QDir samples(TALMIR_SOURCE_DIR "/samples");
    for (const QString& file : samples.entryList({"*.xdb"}))
        ExpectResults(*ExplainFile(samples.filePath(file)));
    ExpectResults(WithoutPower());
    std::mt19937 random(20);
    int zeroDivisors = 0;
    for (int i = 0; i < 300; ++i) {
        const Explanation explanation = Explain(RandomCreature(random), "Any", "");
        ExpectResults(explanation);
        if (i % 10 == 0)
            ExpectEnoughBehindEachResult(explanation);
        zeroDivisors += explanation.evaluation.figures->CostDivisor == 0 ? 1 : 0;
    }
    EXPECT_GT(zeroDivisors, 5) << "the band in which the divisor is taken as 1 wasn't met";
}

TEST(Solve, ReadsItsGoal) {
    const std::tuple<const char*, double, double> goals[] = {
        {"Power=392", 392, 392}, {"Power=1", 1, 1}, {"Tier=1", 1, 151}, {"Tier=4", 512, 977}, {"Tier=7", 4697, 6500}};
    for (const auto& [text, lowest, highest] : goals) {
        const auto goal = ReadSolveGoal(text);
        ASSERT_TRUE(goal) << text;
        EXPECT_EQ(std::pair(goal->band.lowest, goal->band.highest), std::pair(lowest, highest)) << text;
    }
    for (const char* text : {"", "Power", "Power=", "Power=0", "Power=-3", "Power=3.5", "Power=x",
                             "Power=9999999999999", "Tier=0", "Tier=9", "tier=4", "Health=3", "392", "=392"})
        EXPECT_FALSE(ReadSolveGoal(text)) << text;
}

TEST(Solve, OffersTheNearestValuesFirstAndNeverTodays) {
    using Values = std::vector<std::int16_t>;
    const struct {
        Solution solution;
        std::int16_t today;
        Values choices;
    } cases[] = {
        {{Parameter::Attack, {6, 7, 8, 9}, {}, {}}, 4, {6, 7, 8}},
        {{Parameter::Attack, {2, 9, 20, 21}, {}, {}}, 12, {9, 20, 21}},
        {{Parameter::Attack, {4, 5, 6, 7}, {}, {}}, 5, {4, 6, 7}},
        {{Parameter::Attack, {5}, {}, {}}, 5, {}},
        {{Parameter::Attack, {}, Candidate{4, 148}, Candidate{9, 151}}, 8, {9, 4}},
        {{Parameter::Attack, {}, Candidate{4, 148}, {}}, 4, {}},
        {{Parameter::Attack, {}, {}, {}}, 4, {}},
    };
    for (const auto& [solution, today, choices] : cases)
        EXPECT_EQ(ChoicesOf(solution, today, 3), choices) << today;
}

TEST(Solve, ReckonsInTheFiguresOfAMod) {
    Parameters creature{4, 3, 10, 2, 3, 5, 10, 2, 1, 1, false}; // its average Power is 137
    ModScale scale;
    scale.Add(2, Figure::Power, 100, 40); // 2.5
    const auto solution = [&](const char* goal) {
        SolveWish wish{*ReadSolveGoal(goal), {Parameter::Health}, &scale};
        return QString(JsonLine(SolveJson(SolveFor(creature, wish))));
    };
    EXPECT_TRUE(solution("Power=55").contains("\"now\":55")) << "137 / 2.5 is 54.8";
    EXPECT_TRUE(solution("Power=55").contains("\"exact\":[10]"));
    // Health 400 gives 1062 (Rolvane: 9.1457 times 129.0416 is 1180; Hesperin: 6.3246 times 146.84 is 928) and 1054.
    EXPECT_TRUE(solution("Power=9999").contains("\"below\":{\"power\":422,\"value\":400}"));
    EXPECT_TRUE(solution("Tier=8").contains("\"below\":{\"power\":422,\"value\":400}"));
    creature.Tier = 3; // without a scale
    EXPECT_TRUE(solution("Power=55").contains("\"now\":null"));
}

} // namespace

} // namespace Hesperin
