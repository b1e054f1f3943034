#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

#include <cstdlib>

/// Ends the process right after the window has been painted for the first time with all its
/// children.
class EndAfterFirstPicture : public QObject {
public:
    explicit EndAfterFirstPicture(QWidget& window) { window.installEventFilter(this); }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        // The paint events of one update run in one go; what is queued now runs when all are done.
        if (event->type() == QEvent::Paint)
            QMetaObject::invokeMethod(
                qApp, [] { std::_Exit(0); }, Qt::QueuedConnection);
        return false;
    }
};
