#include "ui_Form.h"

#include <QApplication>
#include <QPluginLoader>
#include <QWidget>

#include <cstdio>

// Given the plug-in for Designer, loads it too, as Designer does.
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QWidget window;
    Ui::Form form;
    form.setupUi(&window);
    std::printf("%s from %g to %g, bake %s, %d frames\n", qPrintable(form.speed->getPrefix()), form.speed->valueMin(),
                form.speed->value(), form.bake->isChecked() ? "on" : "off", form.timebar->getMax());

    if (argc < 2)
        return 0;
    QPluginLoader plugin(QString::fromLocal8Bit(argv[1]));
    if (!plugin.instance()) {
        std::printf("%s\n", qPrintable(plugin.errorString()));
        return 1;
    }
    return 0;
}
