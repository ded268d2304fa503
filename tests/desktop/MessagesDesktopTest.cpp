#include "desktop/RealInput.h"
#include "support/TestCase.h"

#include "OvixSvgButton.h"
#include "VelmoMessageBox.h"
#include "oVIXDialogTitle.h"

#include <QApplication>
#include <QPointer>
#include <QScopeGuard>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace Qt::StringLiterals;

class MessagesDesktopTest : public TestCase
{
    Q_OBJECT

private slots:
    void init()
    {
        TestCase::init();
        m_window = std::make_unique<QWidget>();
        RealInput::show(m_window.get(), place);
    }
    void cleanup()
    {
        m_window.reset();
        TestCase::cleanup();
    }

    void isAnswered_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("code");
        QTest::newRow("Return") << u"Return"_s << QString() << int(MsgAccepted);
        QTest::newRow("Enter") << u"KP_Enter"_s << QString() << int(MsgAccepted);
        QTest::newRow("Escape") << u"Escape"_s << QString() << int(MsgRejected);
        QTest::newRow("OK") << QString() << u"okButton"_s << int(MsgAccepted);
        QTest::newRow("cancel") << QString() << u"cancelButton"_s << int(MsgRejected);
        QTest::newRow("other") << QString() << u"lbDont"_s << int(MsgOther);
        QTest::newRow("close") << QString() << QString() << int(MsgRejected);
    }
    void isAnswered()
    {
        QFETCH(QString, key);
        QFETCH(QString, button);
        onceActive([key, button](QWidget *box) {
            if (!key.isEmpty())
                RealInput::key(key);
            else if (!button.isEmpty())
                clickMiddle(box->findChild<QWidget *>(button));
            else
                clickMiddle(box->findChild<oVIXDialogTitle *>()->findChild<OvixSvgButton *>());
        });
        const VelmoMsgReturnCode code = VelmoThreeOptionMessage(u"QUESTION"_s, u"Bake"_s, u"There is a bake already."_s,
                                                                u"Keep both"_s, m_window.get(), nullptr);
        QTEST(int(code), "code");
        QTRY_VERIFY(m_window->isActiveWindow());
    }

    void isTypedIntoAtOnce()
    {
        QString name = u"Hall"_s;
        onceActive([](QWidget *) {
            RealInput::key(u"End"_s);
            RealInput::type(u" 2"_s);
            RealInput::key(u"Return"_s);
        });
        QCOMPARE(VelmoEditMessage(u"RENAME"_s, u"Scene"_s, &name, m_window.get(), nullptr), MsgAccepted);
        QCOMPARE(name, u"Hall 2"_s);
    }

    void waitsBeforeItIsAnswered()
    {
        onceActive([](QWidget *box) {
            const auto *ok = box->findChild<QLabel *>(u"okButton"_s);
            QCOMPARE(ok->text(), u"Replace (2)"_s);
            RealInput::key(u"Return"_s);
            RealInput::key(u"Escape"_s);
            clickMiddle(ok);
            QVERIFY(box->isVisible());
            QTRY_COMPARE(ok->text(), u"Replace"_s);
            clickMiddle(ok);
        });
        QCOMPARE(VelmoCustomThreeOptionMessage(u"QUESTION"_s, u"Bake"_s, u"There is a bake already."_s, u"Replace"_s,
                                               u"Keep both"_s, false, 2, m_window.get(), nullptr),
                 MsgAccepted);
    }

private:
    static constexpr QRect place{300, 200, 900, 600};

    /// Does something to the box that is run next, which has to end it.
    static void onceActive(const std::function<void(QWidget *)> &act)
    {
        QTimer::singleShot(0, qApp, [act] {
            const QPointer<QWidget> box(QApplication::activeModalWidget());
            QVERIFY(box);
            const auto end = qScopeGuard([box] { // a box that got no answer would run for ever
                if (box)
                    box->hide();
            });
            QVERIFY(QTest::qWaitForWindowActive(box));
            QTRY_COMPARE(box->geometry().center(), place.center());
            QTest::qWait(100); // the window manager's echoes of the placing
            QCOMPARE(box->geometry().center(), place.center());
            act(box);
            QTRY_VERIFY(!box || !box->isVisible());
        });
    }
    static void clickMiddle(const QWidget *widget)
    {
        QVERIFY(widget);
        RealInput::click(widget->mapToGlobal(widget->rect().center()));
    }

    std::unique_ptr<QWidget> m_window;
};

VELMO_TEST_MAIN(MessagesDesktopTest)
#include "MessagesDesktopTest.moc"
