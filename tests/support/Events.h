#pragma once

#include <QEvent>
#include <QObject>

/// What the event loop does to a widget.
namespace Events {

/// Runs the event loop until it has nothing left to do. False when it never gets there: something keeps feeding it.
bool untilIdle();

/// Counts the events of one type that @p watched gets.
class Count : public QObject
{
public:
    Count(QObject *watched, QEvent::Type type);

    /// How many came since the last call.
    int taken();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QEvent::Type m_type;
    int m_count = 0;
};

} // namespace Events
