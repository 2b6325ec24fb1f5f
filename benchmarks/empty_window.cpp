// The least that a program with a window can do: shows an empty one of the console's size, says
// "painted" when it is, and ends.

#include "after_painting.h"

#include <QApplication>
#include <QMainWindow>

#include <cstdio>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1180, 760);
    new AfterPainting(
        window, [] { return true; },
        [] {
            std::puts("painted");
            std::fflush(stdout);
            QApplication::quit();
        });
    window.show();
    return QApplication::exec();
}
