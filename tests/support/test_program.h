#pragma once

#include "app/program.h"
#include "localisation/languages.h"
#include "support/scripted_platform.h"

#include <ostream>

namespace Hesperin {

/// A program of its own for one test, in folders of its own, started as far as `start` says.
struct TestProgram {
    enum class Start { Loaded, Bare };

    explicit TestProgram(std::uint8_t language = English, Start start = Start::Loaded);

    QTemporaryDir folder;
    ScriptedPlatform platform;
    Program program{platform};
    MainForm& form = program.form;
    SharedState& state = program.state;

    /// Path of a file in the test's folder.
    QString Path(const QString& name) const { return folder.filePath(name); }

    /// Writes a file into the test's folder and gives its path.
    QString Write(const QString& name, const QByteArray& bytes) const;

    /// Writes a text into a field or list.
    void SetText(const QString& control, const QString& text) const;

    /// Fills in a valid creature: attack 4, defence 3, damage 2 to 3, health 10, name "Test".
    void FillInCreature();

    /// What the labels of the results show.
    QString Results() const;

    /// Names of all ticked boxes.
    QStringList Ticked() const;

    /// Texts of the boxes that `act` shows.
    template <typename Act>
    QStringList BoxesOf(Act act) {
        platform.boxes.clear();
        act();
        return platform.Texts();
    }
};

/// Names of files differ by letter case, folders may take the names of devices, and so on.
#ifdef Q_OS_WIN
constexpr bool OnLinux = false;
#else
constexpr bool OnLinux = true;
#endif

/// Writes a file, in folders made for it.
void WriteFile(const QString& path, const QByteArray& bytes);

/// Path of a program of ours: in the folder that TALMIR_PROGRAMS names, or where it was built.
QString TestedProgram(const char* name);

/// The content of a file, empty when it can't be read.
QByteArray ReadAll(const QString& path);

/// 32-bit FNV-1a over the UTF-16 units.
std::uint32_t Hash(const QString& text);

} // namespace Hesperin

/// So that a failing test shows its texts.
inline void PrintTo(const QString& text, std::ostream* stream) { *stream << '"' << text.toStdString() << '"'; }
