#pragma once

#include <QList>
#include <QMetaMethod>
#include <QObject>
#include <QPointer>

/// Whoever hears a signal and is done with its sender.
class Deleter : public QObject
{
    Q_OBJECT

public:
    /// Deletes @p sender when it emits one of these: within the signal, or with `deleteLater`.
    Deleter(QObject *sender, const QList<QMetaMethod> &heard, bool atOnce, QObject *parent = nullptr);
    ~Deleter() override;

    bool hasHeard() const { return m_heard; }

    /// The signals that a class has besides those of its base.
    static QList<QMetaMethod> ownSignals(const QMetaObject &meta);

private slots:
    void hear();

private:
    QPointer<QObject> m_sender;
    bool m_atOnce;
    bool m_heard = false;
};
