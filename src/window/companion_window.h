#pragma once

#include "app/program.h"

#include <QTimer>
#include <QWidget>

namespace Hesperin {

/// A window beside the main one that shows more of its results: neither locks the other. It follows
/// results, shown file, survey, language and colours; Ctrl+W closes it, and it keeps its place.
class CompanionWindow : public QWidget {
public:
    CompanionWindow(Program& program, const char* name);

    /// Shows it and brings it forward.
    void ComeForward();

    /// Shows all anew when the current event has been handled.
    void RefreshSoon();

protected:
    /// Shows all anew, in the current language.
    virtual void Refresh() = 0;

    /// The key Escape.
    virtual void Escape() { close(); }

    /// Its size and the corner of the screen that it comes up in.
    void PlaceIn(Qt::Corner corner, QSize size);

    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    Program& program;

private:
    QTimer refreshing;
};

} // namespace Hesperin
