// Rules of the house that no compiler checks.
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFileInfo>
#include <QMultiHash>
#include <QRegularExpression>

namespace Hesperin {

namespace {

struct SourceFile {
    QString name; ///< from the root of the sources: "src/form/control.h"
    QStringList lines;
};

std::vector<SourceFile> SourcesUnder(const QString& folder) {
    std::vector<SourceFile> files;
    const QDir root(TALMIR_SOURCE_DIR);
    QDirIterator walk(root.filePath(folder), {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString path = walk.next();
        files.push_back({root.relativeFilePath(path), QString::fromUtf8(ReadAll(path)).split('\n')});
    }
    return files;
}

/// The rooms that a room may use, those of these rooms included, by the table of src/README.md.
QStringList MayUse(const QString& room) {
    static const QStringList table = QString::fromUtf8(ReadAll(TALMIR_SOURCE_DIR "/src/README.md")).split('\n');
    static const QRegularExpression name("`(\\w+)`");
    QStringList rooms;
    for (const QString& row : table.filter("| `" + room + "/` |"))
        for (auto other = name.globalMatch(row.section('|', 3)); other.hasNext();) {
            rooms.append(other.next().captured(1));
            rooms += MayUse(rooms.constLast());
        }
    return rooms;
}

/// Why `file` ("form/control.h") may not include `include`, with its brackets or quotes; empty when it may. What is
/// neither C++ nor Qt has its few places: the library that reads archives, and what only one system has.
QString Fault(const QString& file, const QString& include) {
    static const QMultiHash<QString, QString> more{{"<minizip/unzip.h>", "system/zip_archive.cpp"},
                                                   {"<windows.h>", "system/console.cpp"},
                                                   {"<io.h>", "system/console.cpp"},
                                                   {"<fcntl.h>", "system/console.cpp"},
                                                   {"<unistd.h>", "system/console.cpp"},
                                                   {"<windows.h>", "system/replacement_file_windows.cpp"},
                                                   {"<fcntl.h>", "system/replacement_file_unix.cpp"},
                                                   {"<sys/stat.h>", "system/replacement_file_unix.cpp"},
                                                   {"<unistd.h>", "system/replacement_file_unix.cpp"}};
    static const QRegularExpression widgets("^<(QtWidgets|QtGui|QtTest)/"); // <QWidget> doesn't compile outside window
    if (include.startsWith('<') && include.endsWith(".h>") && !more.contains(include, file))
        return "neither C++ nor Qt";
    const QString layer = file.section('/', 0, 0);
    if (layer != "window" && widgets.match(include).hasMatch())
        return "needs a screen";
    const QString other = include.mid(1).section('/', 0, 0);
    if (!include.startsWith('"') || other == layer)
        return {};
    return MayUse(layer).contains(other) ? QString() : "against the order of the rooms";
}

TEST(House, EveryIncludeKeepsToTheOrderOfTheRooms) {
    static const QRegularExpression pattern("^\\s*#\\s*include\\s*([<\"][^>\"]+[>\"])");
    int count = 0;
    for (const SourceFile& file : SourcesUnder("src"))
        for (const QString& line : file.lines)
            if (const auto match = pattern.match(line); match.hasMatch()) {
                ++count;
                EXPECT_EQ(Fault(file.name.section('/', 1), match.captured(1)), "")
                    << file.name.toStdString() << ": " << line.toStdString();
            }
    EXPECT_GT(count, 200) << "the sources weren't found";
}

TEST(House, TheRuleForIncludesSeesEachFault) {
    const std::pair<const char*, const char*> faults[] = {
        {"form/form.h", "\"system/save_file.h\""}, {"app/play.cpp", "\"cli/json.h\""},
        {"form/form.h", "\"control.h\""},          {"form/form.h", "<QtWidgets/QLabel>"},
        {"window/main.cpp", "<sys/stat.h>"},       {"system/folder.cpp", "<windows.h>"}};
    for (const auto& [file, include] : faults)
        EXPECT_NE(Fault(file, include), "") << file << ' ' << include;
}

TEST(House, FilesAreWrittenInOnePlace) {
    static const QRegularExpression writing("QSaveFile|QTemporaryFile|WriteOnly|ReadWrite|ofstream");
    for (const SourceFile& file : SourcesUnder("src"))
        EXPECT_EQ(file.lines.filter(writing), QStringList()) << file.name.toStdString();
}

TEST(House, FilesStayShort) {
    static const QRegularExpression mayBeLong("table|catalogue|main_form");
    constexpr qsizetype longest = 300;
    for (const char* folder : {"src", "tests"}) {
        const auto files = SourcesUnder(folder);
        EXPECT_FALSE(files.empty());
        for (const SourceFile& file : files) {
            const bool may = mayBeLong.match(QFileInfo(file.name).fileName()).hasMatch();
            EXPECT_TRUE(may || file.lines.size() - 1 < longest)
                << file.name.toStdString() << " has " << file.lines.size() - 1 << " lines";
        }
    }
}

} // namespace

} // namespace Hesperin
