// The sample application as its users start it.

#include "ShowPainted.h"
#include "look/ApplicationLook.h"
#include "look/Wording.h"
#include "scenes/ShippedProjects.h"
#include "window/WorkstationWindow.h"

#include <QApplication>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    ApplicationLook::install();
    Wording::install();
    WorkstationWindow window(ShippedProjects::folder());
    showPainted(window);
    return 0;
}
