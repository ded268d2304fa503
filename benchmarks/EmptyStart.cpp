// The least that an application with a window is.

#include "ShowPainted.h"

#include <QApplication>
#include <QMainWindow>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1180, 760);
    showPainted(window);
    return 0;
}
