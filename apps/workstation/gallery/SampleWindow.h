#pragma once

#include "oVIXMainWindow.h"

class oVIXTitleBar;

/// A small main window of the application that lives on a desk, a plain widget of a page: title bar and a scene's
/// content. Its title bar and grips move, maximise and resize it on the desk; it stays within the pointer's reach.
class SampleWindow : public oVIXMainWindow
{
    Q_OBJECT

public:
    struct Buttons
    {
        bool minimize = true;
        bool maximize = true;
        bool close = true;
    };

    SampleWindow(QWidget *desk, Buttons buttons);

    oVIXTitleBar *titleBar() const;
    void toggleMaximized();
    /// A list of people and what is to be known about their scene.
    void addSceneContent();
    /// One line of words.
    void addWords(const QString &text);

protected:
    void moveEvent(QMoveEvent *event) override;

private:
    oVIXTitleBar *m_titleBar;
    QRect m_normalGeometry;
};

/// A desk of this size with a window on it.
SampleWindow *createDesk(QSize size, SampleWindow::Buttons buttons = {});
