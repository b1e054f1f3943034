#include "window/companion_window.h"

#include "window/fonts.h"

#include <QKeyEvent>
#include <QScreen>
#include <QShortcut>

namespace Hesperin {

CompanionWindow::CompanionWindow(Program& owner, const char* name) : program(owner) {
    setObjectName(QLatin1String(name));
    QFont font = BoxFont();
    font.setPixelSize(13);
    setFont(font);
    refreshing.setSingleShot(true);
    connect(&refreshing, &QTimer::timeout, this, [this] { Refresh(); });
    new QShortcut(QKeySequence(QStringLiteral("Ctrl+W")), this, [this] { close(); });
}

void CompanionWindow::PlaceIn(Qt::Corner corner, QSize size) {
    constexpr int gap = 8;
    constexpr int titleBar = 32;
    const QRect room = screen()->availableGeometry().adjusted(gap, gap + titleBar, -gap, -gap);
    QRect place({}, size.boundedTo(room.size()));
    if (corner == Qt::TopRightCorner)
        place.moveTopRight(room.topRight());
    else
        place.moveBottomRight(room.bottomRight());
    setGeometry(place);
}

void CompanionWindow::ComeForward() {
    refreshing.stop();
    Refresh();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void CompanionWindow::RefreshSoon() {
    if (isVisible())
        refreshing.start(0);
}

void CompanionWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        Escape();
    else
        QWidget::keyPressEvent(event);
}

bool CompanionWindow::event(QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange ||
        event->type() == QEvent::WindowActivate)
        RefreshSoon();
    return QWidget::event(event);
}

} // namespace Hesperin
