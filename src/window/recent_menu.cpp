#include "window/recent_menu.h"

#include <QDir>
#include <QFileInfo>

namespace Hesperin {

RecentMenu::RecentMenu(Program& owner, QMenu& menu) : program(owner), line(menu.addSeparator()) {
    for (std::size_t i = 0; i < entries.size(); ++i) {
        entries[i] = menu.addAction(QString());
        entries[i]->setObjectName(QStringLiteral("Recent(%1)").arg(i + 1));
        QObject::connect(entries[i], &QAction::triggered, &menu,
                         [this, i] { Open(static_cast<qsizetype>(i)); });
    }
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
    files = RecentFiles(program.platform.Places());
    line->setVisible(!files.isEmpty());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        QAction& entry = *entries[i];
        const QString file = files.value(static_cast<qsizetype>(i));
        entry.setVisible(!file.isEmpty());
        QString path = QFontMetrics(entry.font())
                           .elidedText(QDir::toNativeSeparators(file), Qt::ElideMiddle, widest);
        path.replace(u'&', QLatin1String("&&"));
        const QString number = QString::number(i + 1);
        entry.setText(number.chopped(1) + u'&' + number.back() + u' ' + path);
    }
}

void RecentMenu::Open(qsizetype place) {
    const QString file = files.value(place); // the list may change
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
