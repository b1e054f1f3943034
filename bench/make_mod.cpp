#include "make_mod.h"

#include <QDir>
#include <QFile>

namespace Hesperin {

QStringList MakeMod(const QString& folder, int count) {
    const QString samplesFolder = QStringLiteral(TALMIR_SOURCE_DIR "/samples/");
    QDir().mkpath(folder);
    QList<QByteArray> samples;
    for (const QString& name : QDir(samplesFolder).entryList({QStringLiteral("*.xdb")})) {
        QFile file(samplesFolder + name);
        if (file.open(QIODevice::ReadOnly))
            samples.append(file.readAll());
    }
    QStringList paths;
    for (int i = 0; i < count; ++i) {
        QByteArray creature = samples[i % samples.size()];
        creature.replace("<AttackSkill>", "<AttackSkill>" + QByteArray::number(i % 5));
        paths.append(QStringLiteral("%1/creature_%2.xdb").arg(folder).arg(i));
        QFile file(paths.constLast());
        if (file.open(QIODevice::WriteOnly))
            file.write(creature);
    }
    return paths;
}

} // namespace Hesperin
