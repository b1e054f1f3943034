// `talmir-cli table` over a whole mod, whole processes in turn: one thread beside a program that
// only reads the files and runs the XML parser over them, and two threads beside one.
#include "make_mod.h"
#include "start_pairs.h"

#include <QCoreApplication>

using namespace Hesperin;

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QString here = QCoreApplication::applicationDirPath();
    constexpr int rounds = 11;
    const auto table = [&here](const QString& folder, const char* jobs) {
        return ProcessCall{here + QLatin1String("/talmir-cli"),
                           {"table", "--csv", "--jobs", jobs, folder}};
    };
    QString folder;
    QStringList files;
    for (const int count : {10, 1000, 10'000}) { // the peak is that of all processes so far
        folder = here + QStringLiteral("/start/mod_of_%1").arg(count);
        files = MakeMod(folder, count);
        PrintPeakSoFar(qPrintable(QStringLiteral("table --csv on %1 files").arg(count)),
                       table(folder, "2"));
    }
    PrintPair("table --csv --jobs 1 on 10,000 files", table(folder, "1"),
              {here + "/start/read_all", files}, rounds);
    PrintPair("table --csv --jobs 2 on 10,000 files", table(folder, "2"), table(folder, "1"),
              rounds);
    return 0;
}
