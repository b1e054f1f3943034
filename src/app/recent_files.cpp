#include "app/recent_files.h"

#include "system/file_place.h"
#include "system/read_file.h"
#include "system/save_file.h"

#include <QDir>
#include <QFileInfo>
#include <QStringDecoder>

#include <algorithm>

namespace Hesperin {

namespace {

QString ListFile(const ProgramPlaces& places) {
    return places.settingsFolder + QLatin1String("/recent.ini");
}

QString Cleaned(const QString& path) {
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

bool IsPath(const QString& line) {
    constexpr qsizetype longest = 4096;
    const auto isControl = [](QChar unit) { return unit.category() == QChar::Other_Control; };
    return line.size() <= longest && QDir::isAbsolutePath(line) &&
           std::none_of(line.begin(), line.end(), isControl);
}

/// Saves what `change` makes of the list as it lies there now: another program may have written it.
template <typename Change>
void ChangeList(const ProgramPlaces& places, Change change) {
    const QStringList before = RecentFiles(places);
    QStringList files = before;
    change(files);
    if (files == before)
        return;
    QDir().mkpath(places.settingsFolder);
    SaveFile(ListFile(places), (files.join(u'\n') + u'\n').toUtf8());
}

} // namespace

QStringList RecentFiles(const ProgramPlaces& places) {
    constexpr qint64 largest = 1 << 17;
    const auto content = ReadFile(ListFile(places), largest);
    if (!content)
        return {};
    QStringDecoder decode(QStringDecoder::Utf8);
    const QString text = decode(*content);
    if (decode.hasError())
        return {};
    QStringList files;
    for (const QString& line : text.split(u'\n')) {
        const QString path = line.endsWith(u'\r') ? line.chopped(1) : line;
        if (IsPath(path) && !files.contains(path, FileNameCase) && files.size() < MostRecentFiles)
            files.append(path);
    }
    return files;
}

void AddRecentFile(const ProgramPlaces& places, const QString& path) {
    const QString file = Cleaned(path);
    if (!IsPath(file))
        return;
    ChangeList(places, [&](QStringList& files) {
        files.removeIf([&](const QString& old) { return old.compare(file, FileNameCase) == 0; });
        files.prepend(file);
        files = files.mid(0, MostRecentFiles);
    });
}

void RemoveRecentFile(const ProgramPlaces& places, const QString& path) {
    ChangeList(places, [&](QStringList& files) { files.removeAll(path); });
}

} // namespace Hesperin
