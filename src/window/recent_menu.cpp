#include "window/recent_menu.h"

#include "app/recent_files.h"

#include <QDir>
#include <QFileInfo>

namespace Hesperin {

RecentMenu::RecentMenu(Program& owner, QMenu& file) : program(owner), menu(file) {
    Follow();
    Show();
}

void RecentMenu::Follow() {
    const auto& baseline = program.state.baseline;
    if (!baseline || baseline->path == last)
        return;
    last = baseline->path;
    AddRecentFile(program.platform.Places(), last);
    Show();
}

void RecentMenu::Show() {
    constexpr int widest = 420; // pixels
    qDeleteAll(entries);
    entries.clear();
    const QStringList files = RecentFiles(program.platform.Places());
    if (!files.isEmpty())
        entries.append(menu.addSeparator());
    const QFontMetrics metrics(menu.font());
    for (qsizetype i = 0; i < files.size(); ++i) {
        const QString& file = files[i];
        QString path = metrics.elidedText(QDir::toNativeSeparators(file), Qt::ElideMiddle, widest);
        path.replace(u'&', QLatin1String("&&"));
        const QString number = QString::number(i + 1);
        QAction* entry = menu.addAction(number.chopped(1) + u'&' + number.back() + u' ' + path);
        entry->setObjectName(QStringLiteral("Recent(%1)").arg(i + 1));
        entries.append(entry);
        QObject::connect(
            entry, &QAction::triggered, &menu, [this, file] { Open(file); },
            Qt::QueuedConnection); // the entry goes when the list is shown anew
    }
}

void RecentMenu::Open(const QString& file) {
    if (!program.form.frmMain.Enabled())
        return;
    const bool isThere = QFileInfo::exists(file);
    program.form.frmMain.Drop(file);
    if (isThere)
        return;
    RemoveRecentFile(program.platform.Places(), file);
    Show();
}

} // namespace Hesperin
