#pragma once

#include <QPointer>

/// One step after the other for as long as the object lives: each may emit a signal that ends it.
template <class... Steps> void whileAlive(QObject *object, Steps... steps)
{
    const QPointer<QObject> alive(object);
    static_cast<void>(((steps(), !alive.isNull()) && ...));
}
