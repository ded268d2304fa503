// What it costs to let each of 20 full panels float and dock again.

#include "Limited.h"
#include "docking/oVIXDock.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMainWindow>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int panelCount = 20;
constexpr int childCount = 200;
constexpr int columnCount = 4;

QWidget *createContent()
{
    auto *content = new QWidget;
    auto *grid = new QGridLayout(content);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    for (int i = 0; i < childCount; ++i) {
        auto *child = new QLabel(QString::number(i), content);
        child->setFixedSize(12, 2);
        grid->addWidget(child, i / columnCount, i % columnCount);
    }
    return content;
}

QDockWidget *createOurs(QMainWindow *window, const QString &name)
{
    return new oVIXDock(window, name, false, false, false, window);
}

/// With the same sheet while it floats.
QDockWidget *createPlain(QMainWindow *window, const QString &name)
{
    auto *dock = new QDockWidget(name, window);
    dock->setObjectName(name);
    QObject::connect(dock, &QDockWidget::topLevelChanged, dock, [dock](bool floating) {
        dock->setStyleSheet(floating ? u"QDockWidget { border: 2px solid; background-color:rgb(59,59,59); }"_s
                                     : QString());
    });
    return dock;
}

template <QDockWidget *(*Create)(QMainWindow *, const QString &)> void floatAndDock(benchmark::State &state)
{
    QMainWindow window;
    window.resize(1200, 900);
    window.setCentralWidget(new QWidget);
    QList<QDockWidget *> docks;
    for (int i = 0; i < panelCount; ++i) {
        QDockWidget *dock = Create(&window, u"panel %1"_s.arg(i));
        static_cast<QDockWidget *>(dock)->setWidget(createContent());
        window.addDockWidget(i % 2 ? Qt::LeftDockWidgetArea : Qt::RightDockWidgetArea, dock);
        if (i >= 2)
            window.tabifyDockWidget(docks[i % 2], dock);
        docks << dock;
    }
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        qFatal("The window does not come up.");
    QCoreApplication::processEvents();

    int next = 0;
    for (auto _ : state) {
        QDockWidget *dock = docks[next++ % panelCount];
        for (const bool floating : {true, false}) {
            dock->setFloating(floating);
            QCoreApplication::processEvents();
        }
    }
}

} // namespace

BENCHMARK(limited<floatAndDock<createOurs>, 130>)->Name("dock_float/ours");
BENCHMARK(floatAndDock<createPlain>)->Name("dock_float/plain");
