// Whole processes, in turn, each beside its floor: the window to its first complete picture with
// the 348 ability texts on disk, and the command line on one file.
#include "lay_texts.h"
#include "make_mod.h"
#include "start_pairs.h"

#include <QCoreApplication>

using namespace Hesperin;

static const QString SamplesFolder = QStringLiteral(TALMIR_SOURCE_DIR "/samples/");

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QString here = QCoreApplication::applicationDirPath();
    const QString cli = here + QLatin1String("/talmir-cli");
    constexpr int wholeMod = 2000;
    const QStringList files = MakeMod(here + QLatin1String("/start/mod"), 5 * wholeMod);
    for (const int count : {1, 10, 100, 1000, 5 * wholeMod}) // nothing else has been started yet
        PrintPeakSoFar(qPrintable(QStringLiteral("%1 files on the command line").arg(count)),
                       {cli, QStringList{"calc", "--json"} + files.first(count)});
    LayTexts(here + QLatin1String("/start"));
    qputenv("QT_QPA_PLATFORM",
            qgetenv("DISPLAY").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    PrintPair("Process start to first complete picture", {here + "/start/window_start", {}},
              {here + "/start/empty_start", {}});
    PrintPair("  of it, an empty window that writes the same texts",
              {here + "/start/text_start", {}}, {here + "/start/empty_start", {}});
    PrintMemoryPair("Memory of the idle window", {here + "/start/window_start", {"idle"}},
                    {here + "/start/empty_start", {"idle"}});
    PrintPair("Process start to result, one file",
              {cli, {"calc", SamplesFolder + "frost_witch.xdb"}}, {here + "/start/one_line", {}});
    const QStringList mod = files.first(wholeMod);
    PrintPair("2,000 files on the command line", {cli, QStringList{"calc", "--json"} + mod},
              {here + "/start/read_all", mod});
    return 0;
}
