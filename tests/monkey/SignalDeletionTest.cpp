#include "monkey/Deleter.h"
#include "monkey/Senders.h"
#include "monkey/SignalHeaders.h"
#include "support/Gestures.h"
#include "support/OwnSettings.h"
#include "support/TestCase.h"

#include <QApplication>
#include <QMetaMethod>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <vector>

using namespace Qt::StringLiterals;
using Senders::Cause;
using Senders::Deletion;
using Senders::Sender;

Q_DECLARE_METATYPE(Senders::Sender)
Q_DECLARE_METATYPE(Senders::Cause)

namespace {

/// Calls the signal with arguments as their types make them.
void emitEmpty(QObject *sender, const QByteArray &signal)
{
    const int index = sender->metaObject()->indexOfSignal(signal);
    const QMetaMethod method = sender->metaObject()->method(index);
    std::vector<void *> arguments{nullptr};
    for (int i = 0; i < method.parameterCount(); ++i)
        arguments.push_back(method.parameterMetaType(i).create());
    QMetaObject::metacall(sender, QMetaObject::InvokeMetaMethod, index, arguments.data());
    for (int i = 0; i < method.parameterCount(); ++i)
        method.parameterMetaType(i).destroy(arguments[size_t(i) + 1]);
}

} // namespace

class SignalDeletionTest : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase() { keepSettingsIn(m_folder.path()); }

    void everySignalHasACause()
    {
        QStringList classes;
        for (const Sender &sender : Senders::all()) {
            classes << QString::fromLatin1(sender.className);
            QWidget host;
            const std::unique_ptr<QObject> made(sender.create(&host));
            const QMetaObject *meta = made->metaObject();
            while (meta && meta->className() != sender.className)
                meta = meta->superClass();
            QVERIFY2(meta, sender.className);
            QSet<QByteArray> caused;
            for (const Cause &cause : sender.causes)
                caused << cause.signal;
            QSet<QByteArray> known;
            for (const QMetaMethod &signal : Deleter::ownSignals(*meta))
                known << signal.methodSignature();
            QCOMPARE(caused, known);
        }
        QStringList exported = SignalHeaders::classesWithSignals();
        classes.sort();
        exported.sort();
        QCOMPARE(classes, exported);
    }

    void theSenderMayGo_data()
    {
        QTest::addColumn<Sender>("sender");
        QTest::addColumn<Cause>("cause");
        QTest::addColumn<bool>("atOnce");
        for (const Sender &sender : Senders::all()) {
            QHash<QByteArray, int> numbers;
            for (const Cause &cause : sender.causes) {
                const QByteArray name = sender.className + "::" + cause.signal;
                const int number = ++numbers[cause.signal];
                if (cause.deletion == Deletion::AtOnce)
                    QTest::addRow("%s %d at once", name.constData(), number) << sender << cause << true;
                QTest::addRow("%s %d later", name.constData(), number) << sender << cause << false;
            }
        }
    }
    void theSenderMayGo()
    {
        QFETCH(Sender, sender);
        QFETCH(Cause, cause);
        QFETCH(bool, atOnce);
        QWidget host;
        host.resize(600, 400);
        const QPointer<QObject> made = sender.create(&host);
        Gestures::show(&host);

        const QMetaObject *meta = made->metaObject();
        Deleter receiver(made, {meta->method(meta->indexOfSignal(cause.signal))}, atOnce);
        if (cause.act)
            cause.act(made);
        else
            emitEmpty(made, cause.signal);
        QTRY_VERIFY(receiver.hasHeard());
        QTRY_VERIFY(!made);
        QTest::mouseRelease(host.windowHandle(), Qt::LeftButton, {}, QPoint(1, 1)); // what has been held
        Gestures::leave();
    }

private:
    QTemporaryDir m_folder;
};

VELMO_TEST_MAIN(SignalDeletionTest)
#include "SignalDeletionTest.moc"
