#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <cstdlib>

/// Ends the process right after the window has been painted for the first time with all its
/// children. Started with an argument, it stays, and says so on standard output when it is idle.
class EndAfterFirstPicture : public QObject {
public:
    explicit EndAfterFirstPicture(QWidget& window) { window.installEventFilter(this); }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        // The paint events of one update run in one go; what is queued now runs when all are done.
        if (event->type() == QEvent::Paint)
            QMetaObject::invokeMethod(
                qApp, [] { Pictured(); }, Qt::QueuedConnection);
        return false;
    }

private:
    static void Pictured() {
        constexpr int untilIdle = 500; // milliseconds
        if (QCoreApplication::arguments().size() < 2)
            std::_Exit(0);
        QTimer::singleShot(untilIdle, qApp, [] {
            std::puts("idle");
            std::fflush(stdout);
        });
    }
};
