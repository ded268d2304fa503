#pragma once

#include "support/TestCase.h"

#include <QTemporaryDir>
#include <QWidget>

#include <functional>
#include <memory>

class QSettings;
class WorkstationWindow;

/// Base of the tests that go through the whole application as a user does, with the pointer and the keyboard of the
/// display. Every test function is one journey: it begins at the start screen, over copies of the shipped projects,
/// with settings and a trash of its own. Pictures of what a user sees on the way are kept in the build folder.
///
/// A journey that has lost its way, for instance because a button is not to be seen, ends its program.
class Journey : public TestCase
{
    Q_OBJECT

public:
    Journey();
    ~Journey() override;

protected slots:
    void initTestCase();
    void init();
    void cleanup();

protected:
    static constexpr QRect place{100, 40, 1400, 900};

    WorkstationWindow *window() const { return m_window.get(); }
    QSettings &settings() const { return *m_settings; }
    /// The file of a scene that a journey starts with, or makes.
    QString scenePath(const QString &project, const QString &scene) const;
    /// The names of the files in the trash.
    QStringList trash() const;

    /// Closes the window, in case it is still open, and starts the application anew.
    void restart();
    /// Opens a scene by clicks on its project, its row and the button.
    void openScene(const QString &project, const QString &scene);
    /// Chooses from the menu bar by clicks.
    void chooseFromMenu(const QString &menu, const QString &item);

    /// Waits for something to come true.
    void waitFor(const std::function<bool()> &condition, const char *what);
    /// The widget of a class that the user knows by this name, inside @p part of the window. Waits for it.
    template <class Widget> Widget *seen(const QString &name, const QWidget *part = nullptr)
    {
        Widget *found = nullptr;
        waitFor([&] { return (found = seenNow<Widget>(name, part)) != nullptr; }, qPrintable(name));
        return found;
    }
    /// The same without waiting; null when there is none.
    template <class Widget> Widget *seenNow(const QString &name, const QWidget *part = nullptr) const
    {
        const QList<Widget *> widgets = partOrWindow(part)->findChildren<Widget *>();
        for (Widget *widget : widgets) {
            if (widget->isVisible() && nameOf(widget) == name)
                return widget;
        }
        return nullptr;
    }
    static QString nameOf(QWidget *widget);

    static QPoint middleOf(const QWidget *widget);
    /// Clicks into the middle of the widget, which has to be in view there.
    void click(const QWidget *widget);
    /// Replaces what is written in a field and confirms it.
    void enter(const QWidget *field, const QString &text);

    /// Does something to the next box, dialog or menu that runs a loop of its own. It has to end that loop, and has to
    /// be told before: what opens the loop does not return until then.
    template <class Window> void onceOpen(const std::function<void(Window *)> &act)
    {
        awaitLoop([](QWidget *opened) { return qobject_cast<Window *>(opened) != nullptr; },
                  [act](QWidget *opened) { act(qobject_cast<Window *>(opened)); });
    }
    /// Chooses an item of the next menu that opens.
    void onceOpenChoose(const QString &item);

    /// Keeps a picture of all windows.
    void keep(const QString &name);

private:
    const QWidget *partOrWindow(const QWidget *part) const;
    void openWindow();
    void awaitLoop(const std::function<bool(QWidget *)> &isIt, const std::function<void(QWidget *)> &act);
    QString pictureFolder() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<WorkstationWindow> m_window;
    int m_awaitedLoops = 0;
    int m_pictures = 0;
};
