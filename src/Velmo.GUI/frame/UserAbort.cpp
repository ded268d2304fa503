#include "frame/UserAbort.h"

#include "frame/NativeWindowApi.h"

#include <QGuiApplication>
#include <QWindow>

bool userHoldsEscape()
{
    const NativeWindowApi &native = NativeWindowApi::instance();
    if (!native.isKeyDown || !native.foregroundWindow || !native.isKeyDown(NativeWindowApi::Escape))
        return false;
    const QWindow *window = QGuiApplication::focusWindow();
    return window && reinterpret_cast<NativeWindowApi::Handle>(window->winId()) == native.foregroundWindow();
}
