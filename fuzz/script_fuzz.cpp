// The reader of scripts takes any lines. Paths are replaced: a script of a fuzzer must not write
// where it likes.
#include "fuzz_program.h"

#include "cli/script_actions.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

using namespace Hesperin;

namespace {

QString Harmless(const QString& line, const QString& file) {
    const QStringList words = line.split(u' ');
    if (words.size() > 2 && words[0] == QLatin1String("menu"))
        return words[0] + u' ' + words[1] + u' ' + file;
    return line;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    return std::freopen("/dev/null", "w", stdout) == nullptr ? 1
                                                             : 0; // what `show` and `state` print
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const QTemporaryDir folder;
    static const QString file = folder.filePath(QStringLiteral("creature.xdb"));
    FuzzProgram fuzzed;
    ScriptStage stage{fuzzed.program, fuzzed.platform};
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    for (const QByteArray& line : bytes.split('\n'))
        PlayLine(stage, Harmless(QString::fromUtf8(line), file));
    RequireInvariants(fuzzed.program);
    return 0;
}
