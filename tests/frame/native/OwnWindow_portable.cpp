#include "OwnWindow.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

class OwnWindow::Private
{
public:
    Private()
    {
        window.setGeometry(40, 50, 300, 200);
        window.show();
        window.requestActivate();
        const QDeadlineTimer deadline(2000);
        while (QGuiApplication::focusWindow() != &window && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }

    char name[20] = "OwnWindow";
    char option[20] = "-platform";
    char platform[20] = "offscreen";
    char *arguments[4] = {name, option, platform, nullptr};
    int argumentCount = 3;
    QGuiApplication application{argumentCount, arguments};
    QWindow window;
};

const bool OwnWindow::tellsHeldKeys = false;
const bool OwnWindow::takesDarkTitleBar = false;
const bool OwnWindow::tellsAnimations = false;

OwnWindow::OwnWindow() : d(std::make_unique<Private>())
{ }

OwnWindow::~OwnWindow() = default;

void *OwnWindow::handle() const
{
    return reinterpret_cast<void *>(d->window.winId());
}

OwnWindow::Screen OwnWindow::screen() const
{
    const QRect rect = d->window.screen()->geometry();
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

void OwnWindow::press(Key)
{ }

void OwnWindow::release(Key)
{ }

void OwnWindow::setAnimations(bool)
{ }
