#pragma once

#include "app/program.h"

#include <QMenu>

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
    void Open(const QString& file);

    Program& program;
    QMenu& menu;
    QList<QAction*> entries; ///< with the line above them
    QString last;
};

} // namespace Hesperin
