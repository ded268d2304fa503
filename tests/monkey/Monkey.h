#pragma once

#include <QEvent>
#include <QHash>
#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QRandomGenerator>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <functional>

class QWindow;

/// Uses a window as nobody would: moves the pointer, presses buttons and keys, turns the wheel, resizes, hides,
/// disables and deletes, all at random, and looks now and then whether everything still holds together.
///
/// What is done follows from the seed. Timers and animations run by the clock, so a second run with the same seed is
/// much the same, not exactly. Whatever opens is closed again: menus, dialogs, drags and message boxes with event loops
/// of their own. GUI thread only.
class Monkey : public QObject
{
    Q_OBJECT

public:
    using Create = std::function<QWidget *()>;

    struct Rules
    {
        /// Names of classes whose objects the receivers of their signals delete; at once where that is true, else
        /// later.
        QHash<QString, bool> diesOfSignals;
        /// Whether single widgets are hidden, disabled and resized, and whether they are deleted.
        bool changesParts = true;
        bool deletesParts = true;
    };

    Monkey(quint32 seed, Rules rules, QObject *parent = nullptr);
    ~Monkey() override;

    /// Plays until so many events have been sent: with one window after the other, each deleted before the next is
    /// made. Returns what is wrong, empty when nothing is.
    QString play(const Create &create, int events);

    /// Ends it here, with this for what is wrong.
    void stop(const QString &flaw);

    /// What has been done last, the latest at the end. Also in the middle of it.
    QStringList lastEvents() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class Step { Move, Press, Release };

    void turn();
    void act();
    void endLife();
    void finish();
    void note(const QString &what);
    bool chance(int of) { return m_random.bounded(of) == 0; }

    // What to do it to.
    QWidget *guest() const;
    QWidget *pickWindow();
    QWidget *pickWidget(QWidget *window);
    QList<QWidget *> ownParts() const;
    QWidget *pickPart();
    bool aim();

    // Events.
    void planPointer();
    void doStep(Step step);
    void sendMouse(QEvent::Type type, Qt::MouseButton button);
    void turnWheel();
    void pressKey();
    void compose();
    void focusSomething();
    void dropSomething();
    void resizeWindow();
    void changeWindowState();
    void changePart();
    void sendChange();
    void deletePart();
    void deleteOnSignal();
    void wait();
    void closeGuest();
    void releaseAll();

    QRandomGenerator m_random;
    const Rules m_rules;
    Create m_create;
    QPointer<QWidget> m_root;
    QTimer m_turn;
    int m_left = 0;
    int m_lifeLeft = 0;
    int m_sent = 0;
    int m_depth = 0;
    bool m_finished = true;
    QString m_flaw;
    QStringList m_log;
    QList<Step> m_plan;
    Qt::MouseButton m_planned = Qt::LeftButton;
    QPointer<QWindow> m_window;
    QPointF m_place; // in the window
    Qt::MouseButtons m_held;
    int m_clock = 0; // of mouse events, in milliseconds
    int m_deletions = 0;
};
