#pragma once

#include "support/TestCase.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QTemporaryDir>

#include <memory>

class QAction;
class QSettings;
class WorkstationWindow;

/// Base of the tests of the application's window. Every test function finds it open at the start screen, with settings
/// of its own and one project, "Airport".
class WindowTest : public TestCase
{
    Q_OBJECT

protected slots:
    void init();
    void cleanup();

protected:
    /// The project's scenes: their names, and what `write` makes of these contents.
    explicit WindowTest(QMap<QString, QByteArray> scenes);
    ~WindowTest() override;

    WorkstationWindow *window() const { return m_window.get(); }
    /// Opens the window anew, with the settings that the last one has left.
    void openWindow();
    void deleteWindow();
    /// Puts the window on screen.
    virtual void show(QWidget *window) const;

    /// The item of a menu or a button of the window; null when there is none.
    QAction *action(const QString &text) const;
    /// Opens a scene and waits until it is there.
    void open(const QString &scene = QStringLiteral("Hall")) const;
    QString path(const QString &scene = QStringLiteral("Hall")) const;
    /// Writes a scene's file: the root round @p content, and facts if it has none.
    void write(const QString &scene, const QByteArray &content) const;

private:
    QMap<QString, QByteArray> m_scenes;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<WorkstationWindow> m_window;
};
