#pragma once

#include <QByteArray>
#include <QList>

#include <functional>

class QObject;
class QWidget;

/// Every class of the library and of its sample application that has signals: how to make one, and what a user does to
/// get each signal.
namespace Senders {

/// When a receiver of the signal may delete the sender, as its header says or its callers allow.
enum class Deletion { AtOnce, Later };

/// What leads to a signal.
struct Cause
{
    /// Normalised, such as "valueChanged(int)".
    QByteArray signal;
    /// Empty for a signal that only the application can cause: it is then emitted with empty arguments.
    std::function<void(QObject *sender)> act;
    Deletion deletion = Deletion::AtOnce;
};

struct Sender
{
    QByteArray className;
    /// Makes one inside @p host, a plain window that is not on screen yet.
    std::function<QObject *(QWidget *host)> create;
    /// One or more for each of the class's own signals.
    QList<Cause> causes;
};

QList<Sender> all();

} // namespace Senders
