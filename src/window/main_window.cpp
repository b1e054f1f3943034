#include "window/main_window.h"

#include "creature_files/file_commands.h"
#include "localisation/ability_texts.h"
#include "ui/window_commands.h"
#include "window/button_view.h"
#include "window/faces.h"
#include "window/palette.h"
#include "window/tab_view.h"
#include "window/toolkit_words.h"
#include "window/units.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QIcon>
#include <QMimeData>
#include <QResource>
#include <QScreen>
#include <QScrollArea>
#include <QUrl>

namespace Hesperin {

namespace {

constexpr QSize WindowSize(Pixels(15450), Pixels(10560));
constexpr QSize ContentSize(Pixels(15450), Pixels(9360 + 435 + 60));

struct ButtonPlace {
    Button MainForm::*button;
    int left; // twips
    int width;
};

constexpr int ButtonTop = 9360;
constexpr int ButtonHeight = 435;
constexpr ButtonPlace ButtonRow[] = {
    {&MainForm::cmdCalc, 120, 1560},       {&MainForm::cmdRAP, 1800, 3960},
    {&MainForm::cmdRAA, 5880, 3720},       {&MainForm::cmdRAS, 9720, 3360},
    {&MainForm::cmdResetAll, 13200, 2130},
};

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

MainWindow::MainWindow(Program& owner) : program(owner) {
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
    connect(&opening, &QTimer::timeout, this, [this] { OpenCreatureFile(program, fileToOpen); });

    auto* content = new QWidget;
    content->setFixedSize(ContentSize);
    new TabView(program, content);
    BuildButtonRow(*content);
    auto* scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(content);
    setCentralWidget(scroll);

    // Fixed, but never larger than the screen: there the content scrolls.
    setFixedSize(WindowSize.boundedTo(screen()->availableSize()));
    form.frmMain.SetView(this);
    setWindowTitle(form.frmMain.Caption());
}

MainWindow::~MainWindow() {
    program.form.frmMain.SetView(nullptr);
}

void MainWindow::BuildButtonRow(QWidget& content) {
    for (const ButtonPlace& place : ButtonRow)
        new ButtonView(program.form.*place.button, &content, FigureFace(),
                       PixelRect(place.left, ButtonTop, place.width, ButtonHeight));
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
    LoadAbilityTexts(program);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (ending || Form_Unload(program))
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

void MainWindow::OpenSoon(const QString& file) {
    fileToOpen = file;
    opening.start(0);
}

} // namespace Hesperin
