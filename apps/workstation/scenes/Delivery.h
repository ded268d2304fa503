#pragma once

#include <QMetaObject>
#include <QMutex>
#include <QMutexLocker>

#include <memory>

/// The way from working threads back to the object, a `QObject`, that has set them to work. It outlives that object for
/// as long as a thread holds it.
template <class Receiver> class Delivery
{
public:
    explicit Delivery(Receiver *to) : m_receiver(to) { }

    bool isWanted()
    {
        const QMutexLocker locker(&m_mutex);
        return m_receiver;
    }

    /// Nothing arrives any more, not even what is on its way. For the receiver's thread.
    void close()
    {
        const QMutexLocker locker(&m_mutex);
        m_receiver = nullptr;
    }

    /// Runs @p function in the receiver's thread, unless the delivery has been closed by then.
    template <class Function> static void post(const std::shared_ptr<Delivery> &delivery, Function function)
    {
        const QMutexLocker locker(&delivery->m_mutex);
        if (!delivery->m_receiver)
            return;
        QMetaObject::invokeMethod(
            delivery->m_receiver,
            [delivery, function] {
                if (delivery->isWanted())
                    function(delivery->m_receiver);
            },
            Qt::QueuedConnection);
    }

private:
    QMutex m_mutex;
    Receiver *m_receiver;
};
