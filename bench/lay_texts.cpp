#include "lay_texts.h"

#include "game_texts/ability_texts.h"

#include <QDir>
#include <QFile>

namespace Hesperin {

void LayTexts(const QString& programFolder) {
    for (const char* language : {"/EN/", "/RU/"})
        for (const AbilityText& text : AbilityTexts()) {
            const QString folder = programFolder + QLatin1String(language) +
                                   AbilityTextLevels().join(u'/') + u'/' + text.folder;
            QDir().mkpath(folder);
            QFile file(folder + u'/' + text.file);
            if (file.open(QIODevice::WriteOnly))
                file.write(
                    QStringLiteral("Text of an ability %1").arg(text.file).repeated(4).toUtf8());
        }
}

} // namespace Hesperin
