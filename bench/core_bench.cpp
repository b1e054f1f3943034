// Calculate beside the bare formulas, and opening a creature file beside the XML parser alone.
#include "ratios.h"

#include "cli/cli_platform.h"
#include "creature_files/document.h"
#include "creature_files/file_commands.h"
#include "engine/calculate.h"
#include "engine/formulas.h"
#include "ui/form_load.h"

#include <QCoreApplication>
#include <QFile>
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
        Form_Load(program, {1, false});
        OpenCreatureFile(program, QString::fromUtf8(Sample));
    }
    CliPlatform platform;
    Program program{platform};
};

void BareFormulas(benchmark::State& state) {
    OpenedProgram opened;
    const auto& values = opened.program.state.AbilityCurrentValue;
    Creature creature{25, 25, 67, 7, 9, 5, 12, 4, 1.0F, 1.0F, false};
    for (auto _ : state) {
        benchmark::DoNotOptimize(creature);
        creature.AbilityProduct = 1.0F;
        for (std::size_t i = 1; i < values.size(); ++i)
            creature.AbilityProduct *= values[i];
        const Powers powers = ComputePowers(creature);
        benchmark::DoNotOptimize(ComputeFigures(creature, powers));
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
        auto document = NormaliseCreature(bytes);
        FillFromDocument(opened.program, std::get<QString>(std::move(document)),
                         QString::fromUtf8(Sample));
        opened.platform.messages.clear();
    }
}
BENCHMARK(OpenFromMemory);

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return RunAndPrintRatios(
        argc, argv,
        {{"Calculate from fields to labels", "CalculateFromFields", "BareFormulas"},
         {"Opening a creature file from memory", "OpenFromMemory", "XmlParserAlone"}});
}
