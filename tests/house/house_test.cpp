// Rules of the house that no compiler checks.
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFileInfo>
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

/// What the lines of a file include, with their brackets or quotes: "<QString>",
/// "\"form/control.h\"".
QStringList Includes(const SourceFile& file) {
    static const QRegularExpression pattern("^\\s*#\\s*include\\s*([<\"][^>\"]+[>\"])");
    QStringList includes;
    for (const QString& line : file.lines)
        if (const auto match = pattern.match(line); match.hasMatch())
            includes.append(match.captured(1));
    return includes;
}

QString LayerOf(const QString& path) { return path.section('/', 0, 0); }

/// Why a file of `layer` may not include `include`; empty when it may.
QString Fault(const QString& layer, const QString& include) {
    static const QStringList order{"form", "platform", "engine", "catalogues", "localisation", "creature_files", "ui"};
    static const QRegularExpression widgets(
        "^<(QtWidgets|QtGui|QtTest|Q(Widget|Application|GuiApplication|MainWindow|Dialog|"
        "MessageBox|FileDialog|"
        "PushButton|CheckBox|ComboBox|LineEdit|TextEdit|PlainTextEdit|Label|Frame|Menu|MenuBar|"
        "Action|TabWidget|"
        "RadioButton|ButtonGroup|GroupBox|ScrollArea|.*Layout|Painter|Pixmap|Image|Icon|Font|"
        "FontMetrics|Color|"
        "Palette|.*Event|Style|Window|Screen|Clipboard|KeySequence|Cursor|Validator))[>/]");
    static const QRegularExpression posix("^<(unistd|fcntl|dlfcn|pthread|dirent|pwd|sys/.*|arpa/.*|netinet/.*)\\.h>$");
    if (posix.match(include).hasMatch())
        return "not on every system";
    if (layer != "window" && widgets.match(include).hasMatch())
        return "needs a screen";
    if (!include.startsWith('"'))
        return {};
    const QString other = LayerOf(include.mid(1));
    const bool knownLayer = order.contains(other) || other == "window" || other == "cli";
    if (!knownLayer)
        return "of no known layer";
    const bool ownOrBelow = other == layer || (order.contains(other) &&
                                               (!order.contains(layer) || order.indexOf(other) < order.indexOf(layer)));
    return ownOrBelow ? QString() : "against the order of the layers";
}

TEST(House, EveryIncludeKeepsToTheOrderOfTheLayers) {
    int count = 0;
    for (const SourceFile& file : SourcesUnder("src"))
        for (const QString& include : Includes(file)) {
            ++count;
            EXPECT_EQ(Fault(LayerOf(file.name.section('/', 1)), include), "")
                << file.name.toStdString() << " includes " << include.toStdString();
        }
    EXPECT_GT(count, 200) << "the sources weren't found";
}

TEST(House, TheRuleForIncludesSeesEachFault) {
    const struct {
        const char* layer;
        const char* include;
        bool allowed;
    } cases[] = {
        {"form", "\"form/control.h\"", true},
        {"form", "\"platform/platform.h\"", false},
        {"ui", "\"form/control.h\"", true},
        {"engine", "\"catalogues/links.h\"", false},
        {"cli", "\"ui/form_load.h\"", true},
        {"window", "\"ui/form_load.h\"", true},
        {"cli", "\"window/main_window.h\"", false},
        {"window", "\"cli/json.h\"", false},
        {"ui", "\"cli/json.h\"", false},
        {"form", "\"control.h\"", false},
        {"window", "<QWidget>", true},
        {"ui", "<QWidget>", false},
        {"form", "<QtWidgets/QLabel>", false},
        {"cli", "<QGuiApplication>", false},
        {"cli", "<QCoreApplication>", true},
        {"form", "<QString>", true},
        {"platform", "<unistd.h>", false},
        {"window", "<sys/stat.h>", false},
        {"ui", "<QVBoxLayout>", false},
        {"form", "<cstdint>", true},
    };
    for (const auto& test : cases)
        EXPECT_EQ(Fault(test.layer, test.include).isEmpty(), test.allowed) << test.layer << ' ' << test.include;
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
