#pragma once

#include "app/program.h"
#include "app/recent_files.h"

#include <QMenu>

#include <array>

namespace Hesperin {

/// The files used last as entries at the end of a menu, each with its number as its key.
class RecentMenu {
public:
    RecentMenu(Program& program, QMenu& menu);

    /// What the user does has changed something: the file that the window shows now is the one used
    /// last.
    void Follow();

private:
    void Show();
    void Open(qsizetype place);

    Program& program;
    QAction* line; ///< above the entries
    std::array<QAction*, MostRecentFiles> entries{};
    QStringList files;
    QString last;
};

} // namespace Hesperin
