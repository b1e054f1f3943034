// Whole processes, in turn, each beside its floor: the window to its first complete picture with
// the 348 ability texts on disk, and the command line on one file.
#include "start_pairs.h"

#include "catalogues/ability_catalogue.h"
#include "localisation/ability_texts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cstdio>

using namespace Hesperin;

namespace {

/// Lays a text tree of both languages beside the program that is measured.
void LayTexts(const QString& programFolder) {
    SharedState state;
    for (const char* language : {"EN", "RU"})
        for (int i = 1; i <= Ability::Count; ++i) {
            AbilityTextFiles(state, i);
            const QString folder =
                programFolder + u'/' + QLatin1String(language) +
                QLatin1String("/Text/Game/Creatures/Creature_abilities/") +
                QString::fromUtf16(AbilityCatalogue[static_cast<std::size_t>(i)].stem);
            QDir().mkpath(folder);
            for (const QString& name : {state.AbilityNameFile, state.AbilityDescFile}) {
                QFile file(folder + u'/' + name + QLatin1String(".txt"));
                if (file.open(QIODevice::WriteOnly))
                    file.write(
                        QString(QStringLiteral("Text of an ability ") + name).repeated(4).toUtf8());
            }
        }
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QString here = QCoreApplication::applicationDirPath();
    LayTexts(here + QLatin1String("/start"));
    qputenv("QT_QPA_PLATFORM",
            qgetenv("DISPLAY").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    PrintPair("Process start to first complete picture", {here + "/start/window_start", {}},
              {here + "/start/empty_start", {}});
    PrintPair("Process start to result, one file",
              {here + "/talmir-cli",
               {"calc", QStringLiteral(TALMIR_SOURCE_DIR "/samples/frost_witch.xdb")}},
              {here + "/start/one_line", {}});
    return 0;
}
