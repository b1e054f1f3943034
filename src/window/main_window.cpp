#include "window/main_window.h"

#include "app/apply_language.h"
#include "app/handlers/options_menu.h"
#include "system/hand_over.h"
#include "window/button_row.h"
#include "window/explanation_window.h"
#include "window/palette.h"
#include "window/solve_window.h"
#include "window/survey_window.h"
#include "window/tab_view.h"
#include "window/toolkit_words.h"
#include "window/window_fit.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QIcon>
#include <QMimeData>
#include <QPushButton>
#include <QResource>
#include <QShortcut>
#include <QStyle>
#include <QUrl>

namespace Hesperin {

namespace {

/// The one local file that is being dragged; empty when it is anything else.
QString DraggedFile(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 && urls.constFirst().isLocalFile() ? urls.constFirst().toLocalFile()
                                                               : QString();
}

void FollowContrast(bool high) {
    UseColours(high ? HighContrastColours : GivenColours);
}

/// Lies there as plain pixels: any other format would load the readers of all that the system has.
QIcon WindowIcon() {
    constexpr int side = 64;
    const QByteArray pixels = QResource(QStringLiteral(":/icons/talmir.argb")).uncompressedData();
    const QImage image(reinterpret_cast<const uchar*>(pixels.constData()), side, side,
                       QImage::Format_ARGB32);
    return QPixmap::fromImage(image);
}

} // namespace

MainWindow::MainWindow(Program& owner, QSize available) : program(owner) {
    MainForm& form = program.form;
    setObjectName(form.frmMain.Name());
    setAcceptDrops(true);
    menus = BuildMenus(form, *menuBar());
    RestoreHighContrast(program);
    FollowContrast(form.mnuHighContrast.Checked());
    connect(findChild<QAction*>(form.mnuHighContrast.Name()), &QAction::toggled, this,
            FollowContrast);
    opening.setSingleShot(true);
    pictured.setSingleShot(true);
    connect(&pictured, &QTimer::timeout, this, [this] { FinishStart(); });
    following.setSingleShot(true);
    connect(&opening, &QTimer::timeout, this, &MainWindow::OpenNow);
    connect(&following, &QTimer::timeout, this, &MainWindow::Follow);

    const int barExtent = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const WindowFit fit = FitWindow(available, menuBar()->sizeHint().height(), barExtent);
    auto* content = new QWidget;
    tabs = new TabView(program, content, fit.tabs, fit.pageWidth);
    BuildButtonRow(form, *content, fit.tabs.bottom() + 1, fit.window.width());
    setCentralWidget(content);
    setFixedSize(fit.window);
    form.frmMain.SetView(this);
    setWindowTitle(form.frmMain.Caption());
    program.resultsChanged = [this] {
        for (CompanionWindow* window :
             std::initializer_list<CompanionWindow*>{explanation.get(), solve.get(), survey.get()})
            if (window != nullptr)
                window->RefreshSoon();
    };
}

MainWindow::~MainWindow() {
    program.resultsChanged = {};
    survey.reset(); // ends what it still reads
    program.history.SetFollower({});
    program.form.frmMain.SetView(nullptr);
}

QWidget* MainWindow::WidgetOf(const Control& control) const {
    return findChild<QWidget*>(control.Name());
}

/// A disabled main window is locked by the secondary window in front of it, which is modal to it.
void MainWindow::Changed(Control&, Property what) {
    if (what == Property::Caption)
        setWindowTitle(program.form.frmMain.Caption());
}

bool MainWindow::event(QEvent* event) {
    const bool taken = QMainWindow::event(event);
    // What the first picture doesn't show comes when it has been painted.
    if (event->type() == QEvent::Paint && !std::exchange(painted, true))
        pictured.start(0);
    return taken;
}

void MainWindow::FinishStart() {
    QApplication::setWindowIcon(WindowIcon());
    const auto* russian = findChild<QAction*>(program.form.mnuRussian.Name());
    connect(russian, &QAction::toggled, this, HaveToolkitSpeakRussian);
    HaveToolkitSpeakRussian(russian->isChecked());
    LoadTextsOfAbilities(program);
    BuildShortcuts();
    FollowFiles();
    recovery = std::make_unique<RecoveryWatch>(program);
    recovery->Offer();
    following.start(0);
}

/// The file that the window shows, those used last, and those that second starts bring.
void MainWindow::FollowFiles() {
    const auto openSoon = [this](const QString& file) { OpenSoon(file); };
    status = std::make_unique<FileStatus>(program, *menuBar(), openSoon);
    recent = std::make_unique<RecentMenu>(
        program, *findChild<QAction*>(program.form.mnuFile.Name())->menu());
    program.history.SetFollower([this] { following.start(0); });
    const QString folder = program.platform.SettingsFolder();
    auto* secondStarts = new QFileSystemWatcher(this);
    if (QFileInfo::exists(folder))
        secondStarts->addPath(folder);
    connect(secondStarts, &QFileSystemWatcher::directoryChanged, this,
            &MainWindow::TakeFileOfSecondStart);
    TakeFileOfSecondStart();
}

void MainWindow::Follow() {
    status->Follow();
    recent->Follow();
    tabs->Follow();
    recovery->Follow();
}

void MainWindow::FindAbility() {
    tabs->FindAbility();
}

void MainWindow::TakeFileOfSecondStart() {
    const auto file = TakeHandedOver(program.platform.SettingsFolder());
    if (!file)
        return;
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
    OpenSoon(*file);
}

/// The keys that no entry of the menu bar has.
void MainWindow::BuildShortcuts() {
    const auto on = [this](const char* keys, auto act) {
        auto* shortcut = new QShortcut(QKeySequence(QLatin1String(keys)), this, act);
        shortcut->setAutoRepeat(false);
    };
    on("F5", [this] {
        auto* calculate = qobject_cast<QPushButton*>(WidgetOf(program.form.cmdCalc));
        if (calculate != nullptr && program.form.cmdCalc.Usable())
            calculate->click();
    });
    on("Ctrl+Shift+Z", [this] {
        if (program.form.mnuRedo.Usable())
            program.form.mnuRedo.Click();
    });
    on("F10", [this] { menuBar()->setActiveAction(menuBar()->actions().constFirst()); });
    for (const char* keys : {"Ctrl+Tab", "Ctrl+PgDown"})
        on(keys, [this] { tabs->ShowNeighbour(1); });
    for (const char* keys : {"Ctrl+Shift+Tab", "Ctrl+PgUp"})
        on(keys, [this] { tabs->ShowNeighbour(-1); });
}

void MainWindow::LetGo() {
    ending = true;
    if (recovery)
        recovery->End();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (ending || program.form.frmMain.Close())
        event->accept();
    else
        event->ignore();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (program.form.frmMain.Enabled() && !DraggedFile(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    const QString file = DraggedFile(*event->mimeData());
    event->acceptProposedAction();
    OpenSoon(file); // or the program that it came from would wait for the message boxes
}

void MainWindow::ShowSurvey() {
    if (!survey)
        survey = std::make_unique<SurveyWindow>(program, *this);
    survey->ComeForward();
}

void MainWindow::ShowExplanation() {
    if (!explanation)
        explanation = std::make_unique<ExplanationWindow>(program);
    explanation->ShowAsked();
}

void MainWindow::ShowSolve() {
    if (!solve)
        solve = std::make_unique<SolveWindow>(program);
    solve->ShowWithGoal();
}

void MainWindow::OpenSoon(const QString& file) {
    fileToOpen = file;
    opening.start(0);
}

void MainWindow::OpenNow() {
    constexpr int pause = 50; // milliseconds
    if (QApplication::activeModalWidget() != nullptr || !program.form.frmMain.Enabled())
        opening.start(pause); // a box has to be answered first
    else
        program.form.frmMain.Drop(fileToOpen);
}

} // namespace Hesperin
