#pragma once

#include <QCoreApplication>
#include <QWidget>
#include <QWindow>

#include <cstdio>

/// Shows a window and tells the standard output when it has been painted for the first time.
inline void showPainted(QWidget &window)
{
    window.show();
    while (!window.windowHandle()->isExposed())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents();
    std::puts("painted");
    std::fflush(stdout);
}
