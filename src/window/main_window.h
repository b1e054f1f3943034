#pragma once

#include "app/program.h"
#include "window/file_status.h"
#include "window/menu_view.h"
#include "window/recent_menu.h"
#include "window/recovery_watch.h"

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

    /// Opens a creature file when the current event has been handled and nothing stands in front of
    /// the window any more.
    void OpenSoon(const QString& file);

    /// Lets the user look for an ability on its page.
    void FindAbility();

    /// The process is about to end: closing the window asks nothing any more.
    void LetGo();

    void Changed(Control& control, Property what) override;

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void FinishStart();
    void BuildShortcuts();
    void FollowFiles();
    void Follow();
    void OpenNow();
    void TakeFileOfSecondStart();

    Program& program;
    TabView* tabs;
    std::vector<std::unique_ptr<EntryView>> menus;
    std::unique_ptr<RecoveryWatch> recovery; // from the first picture on
    QString fileToOpen;
    QTimer opening;   // of a creature file, when the current event has been handled
    QTimer following; // of what has changed, when the current event has been handled
    std::unique_ptr<FileStatus> status; // from the first picture on, as what follows
    std::unique_ptr<RecentMenu> recent;
    QTimer pictured; // the first picture has been painted
    bool ending = false;
    bool painted = false;
    std::unique_ptr<SurveyWindow> survey;
    std::unique_ptr<ExplanationWindow> explanation;
    std::unique_ptr<SolveWindow> solve;
};

} // namespace Hesperin
