// Reads the files named and runs the XML parser over them: the floor of the command line on a whole
// mod.
#include <QCoreApplication>
#include <QFile>
#include <QXmlStreamReader>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    for (const QString& path : QCoreApplication::arguments().mid(1)) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        QXmlStreamReader reader(file.readAll());
        while (!reader.atEnd())
            reader.readNext();
    }
    return 0;
}
