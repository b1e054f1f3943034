#pragma once

#include "app/program.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>

namespace Hesperin {

/// What the secondary windows have in common: a fixed size, a place in the middle of the screen,
/// one button. The button, the window manager's close button and Escape all do the same: they
/// enable the main window and unload this one.
class SecondaryWindowView : public QDialog {
public:
    SecondaryWindowView(Program& program, QWidget* mainWindow, const char* name);

    void reject() override { Close(); }

protected:
    /// Makes the closing button.
    QPushButton& AddButton(const char* name, const QString& caption, const QRect& place);

    /// Fixes the size and shows the window in the middle of the screen, the button in focus.
    void ShowCentred(QSize size);

    Program& program;

private:
    void Close();

    QPushButton* button = nullptr;
};

/// A text of such a window that can be read and not changed.
QLabel* AddText(QWidget& window, const char* name, const QString& text, const QRect& place,
                const QFont& font, Qt::Alignment alignment);

} // namespace Hesperin
