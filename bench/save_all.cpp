// Reads each file of the folder named and writes it by QSaveFile: the floor of a change of a whole
// mod.
#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QDir folder(QCoreApplication::arguments().value(1));
    for (const QString& name : folder.entryList(QDir::Files)) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        const QByteArray bytes = file.readAll();
        QSaveFile saved(folder.filePath(name));
        if (!saved.open(QIODevice::WriteOnly) || saved.write(bytes) != bytes.size() ||
            !saved.commit())
            return 1;
    }
    return 0;
}
