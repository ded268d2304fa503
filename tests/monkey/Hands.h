#pragma once

#include <QEvent>
#include <QList>
#include <QPointF>
#include <QPointer>
#include <QRandomGenerator>
#include <QString>
#include <QWidget>

#include <functional>

class QWindow;

/// "nothing" for null.
QString nameOf(const QObject *object);

/// Pointer, wheel and keys at random places of whatever windows there are. A click or a drag is several steps: other
/// things happen between them.
class Hands
{
public:
    /// @p note is told of everything that is done, before it is. @p random has to live longer.
    Hands(QRandomGenerator *random, std::function<void(const QString &)> note);

    /// A window that takes events now, null without one.
    QWidget *pickWindow();
    /// A widget of it that is seen: every other time whatever is at some place, else large or small alike.
    QWidget *pickWidget(QWidget *window);

    void usePointer();
    /// Whether what the pointer does goes on; `goOn` does the next step of it.
    bool isBusy() const { return !m_plan.isEmpty(); }
    void goOn();
    void releaseAll();
    /// Ends a drag, if there is one.
    void giveUp();

    void turnWheel();
    void pressKey();
    void compose();
    void focusSomething();
    void dropSomething();

private:
    enum class Step { Move, Press, Release };

    bool aim();
    void sendMouse(QEvent::Type type, Qt::MouseButton button);
    bool chance(int of) { return m_random->bounded(of) == 0; }

    QRandomGenerator *m_random;
    std::function<void(const QString &)> m_note;
    QList<Step> m_plan;
    Qt::MouseButton m_planned = Qt::LeftButton;
    QPointer<QWindow> m_window;
    QPointF m_place; // in the window
    Qt::MouseButtons m_held;
    int m_clock = 0; // of mouse events, in milliseconds
};
