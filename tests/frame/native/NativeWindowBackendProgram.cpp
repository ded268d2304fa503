// Checks the native window services of the system that it is built for, without the toolkit, so that the same program
// is built for Windows alone. Every check that fails is a line on the standard output and makes the exit code 1.
//
// NativeWindowBackendProgram <file for the error stream> [takes-any-window]
// The second argument is for a system that gives a dark title bar to what is not a window.

#include "Checks.h"
#include "OwnWindow.h"

#include "frame/NativeWindowBackend.h"

#include <cstring>
#include <string>

namespace {

using Screen = OwnWindow::Screen;

void checkBeforeAnyWindow(Checks &checks)
{
    const Screen untouched{-1, -2, -3, -4};
    Screen screen = untouched;
    const bool found =
        NativeWindowBackend::monitorRectOfWindow(nullptr, &screen.x, &screen.y, &screen.width, &screen.height);
    checks.check(found != (screen == untouched), "the outputs are left alone when no monitor is found, and only then");
}

void checkKeys(Checks &checks, OwnWindow &window)
{
    using NativeWindowBackend::isKeyDown;
    for (const int key : {-1, 0, 1, 2, 13, 27})
        checks.check(!isKeyDown(key), "no key is down before one is pressed");

    for (const OwnWindow::Key key : {OwnWindow::Escape, OwnWindow::Return}) {
        window.press(key);
        checks.check(isKeyDown(key) == OwnWindow::tellsHeldKeys, "the key that is held is down");
        checks.check(!isKeyDown(1 - key), "the other key is up");
        checks.check(!isKeyDown(2) && !isKeyDown(-1), "an unknown key is up");
        window.release(key);
        checks.check(!isKeyDown(key), "the key that was let go is up");
    }
}

void checkMonitor(Checks &checks, const OwnWindow &window)
{
    using NativeWindowBackend::monitorRectOfWindow;
    Screen all;
    checks.check(monitorRectOfWindow(window.handle(), &all.x, &all.y, &all.width, &all.height),
                 "the window has a monitor");
    checks.check(all.width > 0 && all.height > 0 && all == window.screen(),
                 "its rectangle is that of the window's screen");

    Screen some;
    checks.check(monitorRectOfWindow(window.handle(), &some.x, nullptr, &some.width, nullptr),
                 "two outputs may be null");
    checks.check(monitorRectOfWindow(window.handle(), nullptr, &some.y, nullptr, &some.height),
                 "the other two may be null");
    checks.check(some == all, "the outputs that are there get the same");
}

void checkDarkTitleBar(Checks &checks, const OwnWindow &window, bool takesAnyWindow)
{
    const auto toldOnDarkening = [&checks](void *darkened, bool windows11OrLater) {
        return checks.toldBy([&] { NativeWindowBackend::setDarkTitleBar(darkened, windows11OrLater); });
    };
    const std::string failed = "Failed to set dark mode title bar.\n";
    checks.check(toldOnDarkening(window.handle(), true) == (OwnWindow::takesDarkTitleBar ? "" : failed),
                 "a dark title bar is given in silence where there are any");
    checks.check(toldOnDarkening(window.handle(), false)
                     == "Windows version is less than 11. Dark mode title bar not applied.\n",
                 "the system's age is told");
    if (!takesAnyWindow)
        checks.check(toldOnDarkening(nullptr, true) == failed, "a failed call is told");
}

void checkAnimations(Checks &checks)
{
    using NativeWindowBackend::areAnimationsOn;
    const bool before = areAnimationsOn();
    OwnWindow::setAnimations(false);
    checks.check(areAnimationsOn() != OwnWindow::tellsAnimations, "animations that are switched off are off");
    OwnWindow::setAnimations(true);
    checks.check(areAnimationsOn(), "animations that are switched on are on");
    OwnWindow::setAnimations(before);
}

} // namespace

int main(int argc, char **argv)
{
    Checks checks(argc > 1 ? argv[1] : nullptr);
    if (!checks.isReady())
        return 2;

    checkBeforeAnyWindow(checks);
    OwnWindow window;
    checks.check(NativeWindowBackend::foregroundWindow() == window.handle(), "the own window is the one in front");
    checkKeys(checks, window);
    checkMonitor(checks, window);
    checkDarkTitleBar(checks, window, argc > 2 && std::strcmp(argv[2], "takes-any-window") == 0);
    checkAnimations(checks);
    return checks.result();
}
