// A program of the core library that prints one line: the floor of the command line's start.
#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    std::puts(QCoreApplication::applicationName().toUtf8().constData());
    return 0;
}
