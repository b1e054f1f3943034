#include "lay_texts.h"

#include "localisation/ability_texts.h"

#include <QDir>
#include <QFile>

namespace Hesperin {

void LayTexts(const QString& programFolder) {
    SharedState state;
    for (const char* language : {"EN", "RU"})
        for (int i = 1; i <= Ability::Count; ++i) {
            AbilityTextFiles(state, i);
            const QString folder =
                programFolder + u'/' + AbilityTextFolder(QLatin1String(language), i);
            QDir().mkpath(folder);
            for (const QString& name : {state.AbilityNameFile, state.AbilityDescFile}) {
                QFile file(folder + u'/' + name + QLatin1String(".txt"));
                if (file.open(QIODevice::WriteOnly))
                    file.write((QStringLiteral("Text of an ability ") + name).repeated(4).toUtf8());
            }
        }
}

} // namespace Hesperin
