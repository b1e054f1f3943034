#include "support/test_program.h"

#include "ui/form_load.h"

#include <QFile>

namespace Hesperin {

TestProgram::TestProgram(std::uint8_t language, Start start) {
    platform.programFolder = folder.path();
    platform.settingsFolder = folder.filePath("settings");
    if (start == Start::Loaded)
        Form_Load(program, {language, false});
}

QString TestProgram::Write(const QString& name, const QByteArray& bytes) const {
    QFile file(Path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("a test could not write its file");
    return file.fileName();
}

void TestProgram::FillInCreature() {
    form.txtNC.SetText("Test");
    form.txtAttack.SetText("4");
    form.txtDefence.SetText("3");
    form.txtMinDam.SetText("2");
    form.txtMaxDam.SetText("3");
    form.txtHealth.SetText("10");
}

QByteArray ReadAll(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace Hesperin
