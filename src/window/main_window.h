#pragma once

#include "app/program.h"
#include "window/menu_view.h"

#include <QMainWindow>
#include <QTimer>

namespace Hesperin {

class ExplanationWindow;
class SolveWindow;
class SurveyWindow;
class TabView;

/// The main window: menu bar, tab control and the row of buttons, all views of the program's form.
class MainWindow : public QMainWindow, public ControlView {
public:
    /// Makes itself fit into `available`, a screen without its task bars.
    MainWindow(Program& program, QSize available);
    ~MainWindow() override;
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;

    /// The widget that shows the control of that name; null when there is none.
    QWidget* WidgetOf(const Control& control) const;

    // Each shows a window, which is built when it is first asked for.
    void ShowSurvey();
    void ShowExplanation();
    void ShowSolve();

    /// Opens a creature file when the current event has been handled.
    void OpenSoon(const QString& file);

    /// The process is about to end: closing the window asks nothing any more.
    void LetGo() { ending = true; }

    void Changed(Control& control, Property what) override;

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void FinishStart();
    void BuildShortcuts();

    Program& program;
    TabView* tabs;
    std::vector<std::unique_ptr<EntryView>> menus;
    QString fileToOpen;
    QTimer opening;  // of a creature file, when the current event has been handled
    QTimer pictured; // the first picture has been painted
    bool ending = false;
    bool painted = false;
    std::unique_ptr<SurveyWindow> survey;
    std::unique_ptr<ExplanationWindow> explanation;
    std::unique_ptr<SolveWindow> solve;
};

} // namespace Hesperin
