// Edits in place: finding all places and applying ten edits beside the XML parser alone, and
// `talmir-cli set --write` over a whole mod beside a program that reads and writes the same files.
#include "ratios.h"

#include "creature_files/change.h"
#include "creature_files/document.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>

using namespace Hesperin;

namespace {

QByteArray SampleBytes() {
    QFile file(QStringLiteral(TALMIR_SOURCE_DIR "/samples/frost_witch.xdb"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("the sample creature is missing");
    return file.readAll();
}

void XmlParserAlone(benchmark::State& state) {
    const QByteArray bytes = SampleBytes();
    for (auto _ : state) {
        QXmlStreamReader reader(bytes);
        while (!reader.atEnd())
            benchmark::DoNotOptimize(reader.readNext());
    }
}
BENCHMARK(XmlParserAlone);

/// The check before and behind it, which reads both files anew, is not in it.
void TenEdits(benchmark::State& state) {
    const QByteArray bytes = SampleBytes();
    const QString normalised = *NormaliseCreature(bytes);
    const std::pair<QString, QString> values[] = {
        {"AttackSkill", "91"}, {"DefenceSkill", "92"}, {"MinDamage", "93"}, {"MaxDamage", "94"},
        {"Health", "95"},      {"Exp", "96"},          {"Power", "97"},     {"Cost/Gold", "98"},
    };
    for (auto _ : state) {
        auto file = EditedFile::Open(bytes, normalised);
        for (const auto& [name, text] : values)
            if (file->Set(name, text))
                state.SkipWithError("an edit was refused");
        if (file->AddItem(QStringLiteral("Abilities"), {QStringLiteral("ABILITY_NEW")}) ||
            file->RemoveItem(QStringLiteral("Abilities"), {QStringLiteral("ABILITY_FLYER")}))
            state.SkipWithError("an edit was refused");
        benchmark::DoNotOptimize(*ApplyEdits(bytes, *file->Edits()));
    }
}
BENCHMARK(TenEdits);

/// 2,000 files and a program that is started on them.
void OverAMod(benchmark::State& state, const QString& program, QStringList arguments) {
    const QTemporaryDir folder(QStringLiteral("bench_mod_XXXXXX"));
    const QByteArray bytes = SampleBytes();
    for (int i = 0; i < 2000; ++i) {
        QFile file(folder.filePath(QString::number(i) + QLatin1String(".xdb")));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("a file could not be written");
    }
    arguments.append(folder.path());
    int health = 0;
    for (auto _ : state) {
        for (QString& argument : arguments)
            if (argument.startsWith(QLatin1String("Health=")))
                argument = QStringLiteral("Health=%1").arg(100 + ++health % 100);
        QProcess process;
        process.setStandardOutputFile(QProcess::nullDevice());
        process.start(QCoreApplication::applicationDirPath() + u'/' + program, arguments);
        process.waitForFinished(-1);
        if (process.exitCode() != 0)
            state.SkipWithError("the program failed");
    }
}

void SaveAllAlone(benchmark::State& state) {
    OverAMod(state, QStringLiteral("start/save_all"), {});
}
BENCHMARK(SaveAllAlone)->UseRealTime()->Iterations(1);

void SetOverAMod(benchmark::State& state) {
    OverAMod(state, QStringLiteral("talmir-cli"),
             {QStringLiteral("set"), QStringLiteral("--write"), QStringLiteral("Health=1")});
}
BENCHMARK(SetOverAMod)->UseRealTime()->Iterations(1);

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return RunAndPrintRatios(argc, argv,
                             {{"Ten edits in memory", "TenEdits", "XmlParserAlone"},
                              {"set --write on 2,000 files", "SetOverAMod", "SaveAllAlone"}});
}
