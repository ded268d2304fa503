#pragma once

#include <QMetaMethod>
#include <QObject>
#include <QStringList>

#include <utility>

/// What objects tell, in order: each signal that the class declares itself, by its name, and its arguments, as in
/// "menuOpened, hovered 2". A floating number has a point; arguments that are no texts or numbers are left out.
class Told : public QObject
{
public:
    Told() = default;
    template <class Sender> explicit Told(const Sender *sender) { listenTo(sender); }

    template <class Sender> void listenTo(const Sender *sender) { listenTo(sender, Sender::staticMetaObject); }
    /// Puts in what is no signal.
    void add(const QString &word) { m_told << word; }
    /// Everything since the last call.
    QString taken() { return std::exchange(m_told, {}).join(QStringLiteral(", ")); }

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override;

private:
    void listenTo(const QObject *sender, const QMetaObject &meta);

    QList<QMetaMethod> m_signals;
    QStringList m_told;
};
