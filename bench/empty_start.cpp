// An empty main window that ends after its first complete picture: the floor of the start
// benchmark.
#include "end_after_first_picture.h"

#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QMainWindow window;
    window.setFixedSize(1030, 704);
    window.show();
    const EndAfterFirstPicture end(window);
    return QApplication::exec();
}
