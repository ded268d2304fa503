#include "frame/NativeWindowApi.h"

#include "frame/NativeWindowBackend.h"

NativeWindowApi::NativeWindowApi()
    : isKeyDown(NativeWindowBackend::isKeyDown), foregroundWindow(NativeWindowBackend::foregroundWindow),
      monitorRectOfWindow(NativeWindowBackend::monitorRectOfWindow),
      setDarkTitleBar(NativeWindowBackend::setDarkTitleBar), areAnimationsOn(NativeWindowBackend::areAnimationsOn)
{ }

NativeWindowApi &NativeWindowApi::instance()
{
    static auto *table = new NativeWindowApi;
    return *table;
}
