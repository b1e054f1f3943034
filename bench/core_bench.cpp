// What happens inside one process: Calculate beside the bare formulas, opening a creature file
// beside the XML parser alone, saving beside writing the same bytes, a language switch beside
// reading the same files.
#include "lay_texts.h"
#include "ratios.h"

#include "app/calculate.h"
#include "app/creature_in_form.h"
#include "app/handlers/file_menu.h"
#include "app/handlers/form_load.h"
#include "app/handlers/options_menu.h"
#include "app/handlers/save_and_update.h"
#include "cli/cli_platform.h"
#include "creature_files/document.h"
#include "creature_files/writer.h"
#include "game_texts/ability_texts.h"
#include "model/formulas.h"
#include "model/search.h"

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QXmlStreamReader>

using namespace Hesperin;

namespace {

constexpr const char* Sample = TALMIR_SOURCE_DIR "/samples/frost_witch.xdb";

QByteArray SampleBytes() {
    QFile file(QString::fromUtf8(Sample));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("the sample creature is missing");
    return file.readAll();
}

/// A program with the sample opened: no Calculate on it shows a warning.
struct OpenedProgram {
    OpenedProgram() {
        Form_Load(program, {std::uint8_t{1}, false});
        OpenCreatureFile(program, QString::fromUtf8(Sample));
    }
    CliPlatform platform;
    Program program{platform};
};

void BareFormulas(benchmark::State& state) {
    OpenedProgram opened;
    const auto& values = opened.program.state.AbilityCurrentValue;
    Parameters parameters = opened.program.state.parameters;
    for (auto _ : state) {
        benchmark::DoNotOptimize(parameters);
        parameters.AbilityProduct = 1.0F;
        for (std::size_t i = 1; i < values.size(); ++i)
            parameters.AbilityProduct *= values[i];
        const Powers powers = ComputePowers(parameters);
        benchmark::DoNotOptimize(ComputeFigures(parameters, powers));
    }
}
BENCHMARK(BareFormulas);

void CalculateFromFields(benchmark::State& state) {
    OpenedProgram opened;
    for (auto _ : state)
        Calculate(opened.program);
    opened.platform.messages.clear();
}
BENCHMARK(CalculateFromFields);

/// Of every value of the seven parameters, each tried once.
void PowersOfEachValue(benchmark::State& state) {
    OpenedProgram opened;
    Parameters parameters = opened.program.state.parameters;
    int values = 0;
    for (std::size_t i = 0; i < PowerParameters; ++i) {
        const ValueRange range = RangeOf(parameters, static_cast<Parameter>(i));
        values += range.highest - range.lowest + 1;
    }
    for (auto _ : state)
        for (int i = 0; i < values; ++i) {
            benchmark::DoNotOptimize(parameters);
            benchmark::DoNotOptimize(ComputePowers(parameters));
        }
}
BENCHMARK(PowersOfEachValue);

void SolveForAPower(benchmark::State& state) {
    OpenedProgram opened;
    const Parameters& parameters = opened.program.state.parameters;
    for (auto _ : state)
        for (std::size_t i = 0; i < PowerParameters; ++i)
            benchmark::DoNotOptimize(Solve(parameters, static_cast<Parameter>(i), {2000, 2000}));
}
BENCHMARK(SolveForAPower);

void XmlParserAlone(benchmark::State& state) {
    const QByteArray bytes = SampleBytes();
    for (auto _ : state) {
        QXmlStreamReader reader(bytes);
        while (!reader.atEnd())
            reader.readNext();
        benchmark::DoNotOptimize(reader.hasError());
    }
}
BENCHMARK(XmlParserAlone);

void OpenFromMemory(benchmark::State& state) {
    OpenedProgram opened;
    const QByteArray bytes = SampleBytes();
    for (auto _ : state) {
        const auto document = NormaliseCreature(bytes);
        const UserAct act(opened.program.form.mnuOpen); // as the menu has it
        ShowDocument(opened.program, {bytes, *document}, QString::fromUtf8(Sample));
        opened.platform.messages.clear();
    }
}
BENCHMARK(OpenFromMemory);

/// The sample with so many upgrades that it has `kilobytes`.
QByteArray SampleOfSize(int64_t kilobytes) {
    const QByteArray item =
        "\t\t<Item>/GameMechanics/Creature/Creatures/Neutrals/Other.xdb</Item>\r\n";
    QByteArray bytes = SampleBytes();
    const qsizetype missing = kilobytes * 1024 - bytes.size();
    const qsizetype end = bytes.lastIndexOf("</Creature>");
    return bytes.insert(end, "\t<Odd>\r\n" +
                                 item.repeated(std::max<qsizetype>(0, missing) / item.size()) +
                                 "\t</Odd>\r\n");
}

void OpenOfSize(benchmark::State& state) {
    OpenedProgram opened;
    const QByteArray bytes = SampleOfSize(state.range(0));
    for (auto _ : state) {
        const auto document = NormaliseCreature(bytes);
        const UserAct act(opened.program.form.mnuOpen); // as the menu has it
        ShowDocument(opened.program, {bytes, *document}, QString::fromUtf8(Sample));
        opened.platform.messages.clear();
    }
    state.SetBytesProcessed(state.iterations() * bytes.size());
}
BENCHMARK(OpenOfSize)->ArgName("KiB")->RangeMultiplier(2)->Range(2, 32);

/// A creature with every box ticked that can be, saved over and over at one place.
struct FullProgram {
    FullProgram() {
        Form_Load(program, {std::uint8_t{1}, false});
        for (CheckBox& box : program.form.Abilities)
            box.SetTicked(true);
        for (CheckBox& box : program.form.Spells)
            box.SetTicked(true);
    }
    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("full.xdb"));
    CliPlatform platform;
    Program program{platform};
};

void SaveBytesAlone(benchmark::State& state) {
    const FullProgram full;
    const QByteArray bytes = CreatureFileBytes(
        BuildCreatureText(TakeCreature(full.program), QStringLiteral("Full"), 0).text);
    for (auto _ : state) {
        QSaveFile file(full.path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
            state.SkipWithError("the file could not be written");
    }
}
BENCHMARK(SaveBytesAlone)->UseRealTime()->Repetitions(41)->MinTime(0.1); // mostly the disk's

/// The whole command: composes, reads back, writes.
void SaveCommand(benchmark::State& state) {
    FullProgram full;
    full.program.form.txtNC.SetText(QStringLiteral("Full"));
    full.platform.dialogPath = full.path;
    for (auto _ : state) {
        if (mnuSave_Click(full.program) || !full.platform.messages.empty())
            state.SkipWithError("the file could not be written");
    }
}
BENCHMARK(SaveCommand)->UseRealTime()->Repetitions(41)->MinTime(0.1);

/// Paths of the 348 texts of one language.
QStringList TextPaths(const QString& folder) {
    QStringList paths;
    for (const AbilityText& text : AbilityTexts())
        paths.append(folder + QLatin1String("/EN/") + AbilityTextLevels().join(u'/') + u'/' +
                     text.folder + u'/' + text.file);
    return paths;
}

void ReadTextsAlone(benchmark::State& state) {
    const QStringList paths = TextPaths(QCoreApplication::applicationDirPath());
    for (auto _ : state)
        for (const QString& path : paths) {
            QFile file(path);
            if (!file.open(QIODevice::ReadOnly))
                state.SkipWithError("a text is missing");
            benchmark::DoNotOptimize(file.readAll());
        }
}
BENCHMARK(ReadTextsAlone);

void SwitchLanguage(benchmark::State& state) {
    OpenedProgram opened;
    for (auto _ : state)
        mnuEnglish_Click(opened.program);
}
BENCHMARK(SwitchLanguage);

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    LayTexts(QCoreApplication::applicationDirPath());
    return RunAndPrintRatios(
        argc, argv,
        {{"Calculate from fields to labels", "CalculateFromFields", "BareFormulas"},
         {"Search of seven parameters for a Power", "SolveForAPower", "PowersOfEachValue"},
         {"Opening a creature file from memory", "OpenFromMemory", "XmlParserAlone"},
         {"Saving a full creature file", "SaveCommand", "SaveBytesAlone"},
         {"Language switch, 348 texts", "SwitchLanguage", "ReadTextsAlone"}});
}
