#include "support/Told.h"

#include <QVariant>

using namespace Qt::StringLiterals;

namespace {

QString textOf(const QVariant &argument)
{
    const QString text =
        argument.typeId() == QMetaType::QStringList ? argument.toStringList().join(u' ') : argument.toString();
    return argument.typeId() == QMetaType::Double && !text.contains(u'.') ? text + u".0"_s : text;
}

} // namespace

void Told::listenTo(const QObject *sender, const QMetaObject &meta)
{
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() != QMetaMethod::Signal)
            continue;
        QMetaObject::connect(sender, i, this, QObject::staticMetaObject.methodCount() + int(m_signals.size()),
                             Qt::DirectConnection);
        m_signals << meta.method(i);
    }
}

int Told::qt_metacall(QMetaObject::Call call, int id, void **arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (id < 0 || call != QMetaObject::InvokeMetaMethod)
        return id;
    const QMetaMethod &signal = m_signals[id];
    QStringList words{QString::fromLatin1(signal.name())};
    for (int i = 0; i < signal.parameterCount(); ++i) {
        const QVariant argument(signal.parameterMetaType(i), arguments[i + 1]);
        if (argument.canConvert<QString>() || argument.canConvert<QStringList>())
            words << textOf(argument);
    }
    m_told << words.join(u' ');
    return -1;
}
