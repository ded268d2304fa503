#include "monkey/Deleter.h"

Deleter::Deleter(QObject *sender, const QList<QMetaMethod> &heard, bool atOnce, QObject *parent)
    : QObject(parent), m_sender(sender), m_atOnce(atOnce)
{
    const QMetaMethod slot = staticMetaObject.method(staticMetaObject.indexOfSlot("hear()"));
    for (const QMetaMethod &signal : heard)
        connect(sender, signal, this, slot);
}

Deleter::~Deleter() = default;

QList<QMetaMethod> Deleter::ownSignals(const QMetaObject &meta)
{
    QList<QMetaMethod> found;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            found << meta.method(i);
    }
    return found;
}

void Deleter::hear()
{
    m_heard = true;
    if (m_atOnce)
        delete m_sender; // and perhaps this with it
    else if (m_sender)
        m_sender->deleteLater();
}
