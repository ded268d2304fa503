#pragma once

#include <memory>

/// A window of the program's own, made with the system's means alone: 300 by 200 at (40, 50), in front once it is made.
class OwnWindow
{
public:
    enum Key : int { Escape = 0, Return = 1 };

    struct Screen
    {
        int x = 0;
        int y = 0;
        int width = 0;
        int height = 0;

        bool operator==(const Screen &) const = default;
    };

    /// What the system can do.
    static const bool tellsHeldKeys;
    static const bool takesDarkTitleBar;
    static const bool tellsAnimations;

    OwnWindow();
    ~OwnWindow();

    void *handle() const;
    /// The screen that the window is on.
    Screen screen() const;

    void press(Key key);
    void release(Key key);

    /// Sets the desktop's setting for this session.
    static void setAnimations(bool on);

private:
    class Private;
    const std::unique_ptr<Private> d;
};
