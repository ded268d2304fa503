// Checks the native window services of the system that it is built for, without the toolkit, so that the same program
// is built for Windows alone. Every check that fails is a line on the standard output and makes the exit code 1.
//
// NativeWindowBackendProgram <file for the error stream> [takes-any-window]
// The second argument is for a system that gives a dark title bar to what is not a window.

#include "OwnWindow.h"

#include "frame/NativeWindowBackend.h"

#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>

namespace {

using Screen = OwnWindow::Screen;

const char *errorFile = nullptr;
int failures = 0;

void check(bool holds, const char *promise)
{
    if (holds)
        return;
    std::printf("FAILED: %s\n", promise);
    ++failures;
}

std::string errorsSoFar()
{
    std::fflush(stderr);
    std::ifstream file(errorFile, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// What is told on the standard error stream when a window is to be made dark.
std::string toldOnDarkening(void *window, bool windows11OrLater)
{
    const std::string before = errorsSoFar();
    NativeWindowBackend::setDarkTitleBar(window, windows11OrLater);
    return errorsSoFar().substr(before.size());
}

void checkBeforeAnyWindow()
{
    const Screen untouched{-1, -2, -3, -4};
    Screen screen = untouched;
    const bool found =
        NativeWindowBackend::monitorRectOfWindow(nullptr, &screen.x, &screen.y, &screen.width, &screen.height);
    check(found != (screen == untouched), "the outputs are left alone when no monitor is found, and only then");
}

void checkKeys(OwnWindow &window)
{
    using NativeWindowBackend::isKeyDown;
    for (const int key : {-1, 0, 1, 2, 13, 27})
        check(!isKeyDown(key), "no key is down before one is pressed");

    for (const OwnWindow::Key key : {OwnWindow::Escape, OwnWindow::Return}) {
        window.press(key);
        check(isKeyDown(key) == OwnWindow::tellsHeldKeys, "the key that is held is down");
        check(!isKeyDown(1 - key), "the other key is up");
        check(!isKeyDown(2) && !isKeyDown(-1), "an unknown key is up");
        window.release(key);
        check(!isKeyDown(key), "the key that was let go is up");
    }
}

void checkMonitor(const OwnWindow &window)
{
    using NativeWindowBackend::monitorRectOfWindow;
    Screen all;
    check(monitorRectOfWindow(window.handle(), &all.x, &all.y, &all.width, &all.height), "the window has a monitor");
    check(all.width > 0 && all.height > 0 && all == window.screen(), "its rectangle is that of the window's screen");

    Screen some;
    check(monitorRectOfWindow(window.handle(), &some.x, nullptr, &some.width, nullptr), "two outputs may be null");
    check(monitorRectOfWindow(window.handle(), nullptr, &some.y, nullptr, &some.height), "the other two may be null");
    check(some == all, "the outputs that are there get the same");
}

void checkDarkTitleBar(const OwnWindow &window, bool takesAnyWindow)
{
    const std::string failed = "Failed to set dark mode title bar.\n";
    check(toldOnDarkening(window.handle(), true) == (OwnWindow::takesDarkTitleBar ? "" : failed),
          "a dark title bar is given in silence where there are any");
    check(toldOnDarkening(window.handle(), false)
              == "Windows version is less than 11. Dark mode title bar not applied.\n",
          "the system's age is told");
    if (!takesAnyWindow)
        check(toldOnDarkening(nullptr, true) == failed, "a failed call is told");
}

} // namespace

int main(int argc, char **argv)
{
    errorFile = argc > 1 ? argv[1] : nullptr;
    if (!errorFile || !std::freopen(errorFile, "wb", stderr)) {
        std::printf("A file to write is needed.\n");
        return 2;
    }

    checkBeforeAnyWindow();
    OwnWindow window;
    check(NativeWindowBackend::foregroundWindow() == window.handle(), "the own window is the one in front");
    checkKeys(window);
    checkMonitor(window);
    checkDarkTitleBar(window, argc > 2 && std::strcmp(argv[2], "takes-any-window") == 0);

    if (failures > 0)
        std::printf("The error stream is in %s.\n", errorFile);
    return failures > 0 ? 1 : 0;
}
