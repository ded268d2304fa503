#include "support/Events.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>

#include <utility>

bool Events::untilIdle()
{
    constexpr int farTooMany = 2000;
    for (int i = 0; i < farTooMany; ++i) {
        if (!QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents))
            return true;
    }
    return false;
}

Events::Count::Count(QObject *watched, QEvent::Type type) : m_type(type)
{
    watched->installEventFilter(this);
}

int Events::Count::taken()
{
    return std::exchange(m_count, 0);
}

bool Events::Count::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == m_type)
        ++m_count;
    return false;
}
