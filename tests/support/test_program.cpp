#include "support/test_program.h"

#include "app/handlers/form_load.h"
#include "form/form_lists.h"

#include <QDir>

namespace Hesperin {

TestProgram::TestProgram(std::uint8_t language, Start start) {
    platform.programFolder = folder.path();
    platform.settingsFolder = folder.filePath("settings");
    platform.dataFolder = folder.filePath("data");
    if (start == Start::Loaded)
        Form_Load(program, {language, false});
}

QString TestProgram::Write(const QString& name, const QByteArray& bytes) const {
    WriteFile(Path(name), bytes);
    return Path(name);
}

void TestProgram::SetText(const QString& control, const QString& text) const {
    Control* found = form.Find(control);
    if (auto* field = dynamic_cast<TextField*>(found))
        field->SetText(text);
    else
        dynamic_cast<ComboBox&>(*found).SetText(text);
}

void TestProgram::FillInCreature() {
    const std::pair<const char*, const char*> texts[] = {{"txtNC", "Test"},  {"txtAttack", "4"}, {"txtDefence", "3"},
                                                         {"txtMinDam", "2"}, {"txtMaxDam", "3"}, {"txtHealth", "10"}};
    for (const auto& [field, text] : texts)
        SetText(field, text);
}

QString TestProgram::Results() const {
    QStringList captions;
    for (const Method method : {Method::Rolvane, Method::Hesperin, Method::Average})
        for (const Figure figure : {Figure::Power, Figure::Cost, Figure::Experience, Figure::Growth})
            for (const ResultRow& row : ResultRows)
                if (row.method == method && row.figure == figure)
                    captions.append((form.*row.place.label).Caption());
    return captions.join(' ');
}

QStringList TestProgram::Ticked() const {
    QStringList names;
    for (const Control* control : form.Controls())
        if (const auto* box = dynamic_cast<const CheckBox*>(control); box != nullptr && box->Ticked())
            names.append(box->Name());
    return names;
}

void WriteFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("a test could not write its file");
}

QString TestedProgram(const char* name) {
    static const QTemporaryDir data; // of a user, for the copies that it keeps
    qputenv("XDG_DATA_HOME", data.path().toUtf8());
    return qEnvironmentVariable("TALMIR_PROGRAMS", TALMIR_PROGRAMS) + '/' + name + (OnLinux ? "" : ".exe");
}

QByteArray ReadAll(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::uint32_t Hash(const QString& text) {
    std::uint32_t hash = 2166136261U;
    for (const QChar unit : text)
        hash = (hash ^ unit.unicode()) * 16777619U;
    return hash;
}

} // namespace Hesperin
