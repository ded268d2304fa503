#include "support/Gestures.h"
#include "support/TestCase.h"

#include "values/OvixMovableLabel.h"

#include <QAccessible>
#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// A marker in a window on a way of 100 pixels that stands for 0 to 50, and what it has announced.
struct Shown
{
    QWidget window;
    OvixMovableLabel *marker = new OvixMovableLabel(&window);
    QLineEdit *other = new QLineEdit(&window);
    QStringList announced;

    Shown()
    {
        window.resize(400, 120);
        other->setGeometry(0, 80, 100, 30);
        marker->setGeometry(0, 10, 40, 24);
        marker->setMinMaxPosValue(0, 100, 50);
        Gestures::show(&window);
        const auto listen = [this](auto signal, const QString &name) {
            QObject::connect(marker, signal, marker, [this, name] { announced << name; });
        };
        listen(&OvixMovableLabel::moved, u"moved"_s);
        listen(&OvixMovableLabel::released, u"released"_s);
        listen(&OvixMovableLabel::editingStarted, u"started"_s);
        listen(&OvixMovableLabel::editingFinished, u"finished"_s);
    }

    QString text() const { return marker->findChild<QLabel *>()->text(); }
    QLineEdit *editor() const { return marker->findChild<QLineEdit *>(); }

    void startEdit()
    {
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        Gestures::doubleClick(marker);
        QVERIFY(editor()->hasFocus());
        announced.removeAll(u"released"_s);
    }
};

} // namespace

class OvixMovableLabelTest : public TestCase
{
    Q_OBJECT

private slots:
    void standsWhereItsValueIs()
    {
        Shown shown;
        shown.marker->setCurrentValue(25);
        QCOMPARE(shown.marker->pos(), QPoint(50, 10));
        QCOMPARE(shown.text(), u"25"_s);
        for (const int refused : {-1, 51}) {
            shown.marker->setCurrentValue(refused);
            QCOMPARE(shown.marker->x(), 50);
        }
        shown.marker->setMinMaxPosValue(10, 10, 50);
        QCOMPARE(shown.marker->getValue(), 0);
        shown.marker->setMinMaxPosValue(10, 10, 0);
        shown.marker->setMinMaxPosValue(0, 200, 50);
        QCOMPARE(shown.marker->x(), 100);
        shown.marker->move(41, 10);
        shown.marker->setMinMaxPosValue(100, 300, 100);
        QCOMPARE(shown.marker->x(), 120); // the value of the pixel that it was moved to
    }

    void followsThePointerBetweenItsEnds()
    {
        Shown shown;
        shown.marker->setCurrentValue(25);
        Gestures::press(shown.marker);
        const int grip = shown.marker->width() / 2 - 1;
        for (const auto &[x, at, text] :
             {std::tuple(61, 61, u"30"_s), std::tuple(300, 100, u"50"_s), std::tuple(-80, 0, u"0"_s)}) {
            Gestures::hover(&shown.window, QPoint(x + grip, 20));
            QCOMPARE(shown.marker->pos(), QPoint(at, 10));
            QCOMPARE(shown.text(), text);
        }
        shown.marker->setMinMaxPosValue(0, 10, 0); // in the middle of it all
        Gestures::hover(&shown.window, QPoint(80, 20));
        QCOMPARE(shown.text(), u"0"_s);
        Gestures::release(shown.marker);
        shown.announced.removeDuplicates();
        QCOMPARE(shown.announced, (QStringList{u"moved"_s, u"released"_s}));

        for (const bool hides : {true, false}) { // with the button held
            shown.announced.clear();
            Gestures::press(shown.marker);
            hides ? shown.marker->hide() : shown.marker->setEnabled(false);
            QCOMPARE(shown.announced, QStringList(u"released"_s));
            Gestures::release(&shown.window);
            shown.marker->show();
            shown.marker->setEnabled(true);
        }

        shown.marker->setDraggable(false);
        Gestures::press(shown.marker);
        Gestures::hover(&shown.window, QPoint(5, 20));
        QCOMPARE(shown.marker->x(), 10);
        Gestures::release(shown.marker);
    }

    void takesOverWhatIsTyped()
    {
        for (const auto &[typed, value] : {std::pair(u"30"_s, 30), std::pair(u"12.5"_s, 0), std::pair(u"51"_s, 20),
                                           std::pair(u"99999999999"_s, 0)}) {
            Shown shown;
            shown.marker->setCurrentValue(20);
            shown.marker->setInternalText(u"20 s"_s);
            shown.startEdit();
            QCOMPARE(shown.editor()->selectedText(), u"20"_s);
            QTest::keyClicks(shown.editor(), typed);
            shown.editor()->selectAll();
            QTest::keyClick(shown.editor(), Qt::Key_Return);
            QVERIFY(!shown.marker->isEditing());
            QCOMPARE(shown.marker->getValue(), value);
            QCOMPARE(shown.announced, (QStringList{u"started"_s, u"finished"_s}));
        }
    }

    void endsAnEditHoweverItIsLeft()
    {
        Shown shown;
        shown.marker->setCurrentValue(20);
        shown.startEdit();
        QTest::keyClicks(shown.editor(), u"30"_s);
        QTest::keyClick(shown.editor(), Qt::Key_Escape);
        QCOMPARE(shown.marker->getValue(), 20);
        shown.startEdit();
        QTest::keyClick(shown.editor(), Qt::Key_Delete);
        shown.other->setFocus(); // without a number
        QTRY_VERIFY(!shown.marker->isEditing());
        QCOMPARE(shown.marker->getValue(), 20);
        shown.startEdit();
        QTest::keyClicks(shown.editor(), u"40"_s);
        shown.other->setFocus();
        QCOMPARE(shown.marker->getValue(), 40);
        shown.startEdit();
        shown.marker->hide();
        QVERIFY(!shown.marker->isEditing());
        QCOMPARE(shown.announced.count(u"started"_s), 4);
        QCOMPARE(shown.announced.count(u"finished"_s), 4);
        shown.marker->show();
        shown.marker->setEditable(false);
        Gestures::doubleClick(shown.marker);
        QVERIFY(!shown.marker->isEditing());
    }

    void mayDieInTheMiddleOfAnEdit()
    {
        for (const Qt::Key key : {Qt::Key_1, Qt::Key_Delete}) { // with and without a number for those who leave
            Shown shown;
            const QPointer<OvixMovableLabel> marker(shown.marker);
            shown.startEdit();
            QTest::keyClick(shown.editor(), key);
            connect(marker, &OvixMovableLabel::editingFinished, &shown.window, [marker] { delete marker; });
            shown.other->setFocus();
            QVERIFY(!marker);
        }
        auto *window = new OvixMovableLabel; // closes, and takes the focus from its editor, when it is half gone
        QSignalSpy finished(window, &OvixMovableLabel::editingFinished);
        window->setCurrentValue(20);
        Gestures::show(window);
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
        Gestures::doubleClick(window);
        QVERIFY(window->isEditing());
        delete window;
        QCOMPARE(finished.size(), 0);
    }

    void tellsItsValue()
    {
        Shown shown;
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(shown.marker);
        QCOMPARE(interface->role(), QAccessible::Slider);
        for (const double refused : {-1.0, 51.0, 1e300, std::nan("")})
            interface->valueInterface()->setCurrentValue(refused);
        interface->valueInterface()->setCurrentValue(33);
        QCOMPARE(interface->text(QAccessible::Value), u"33"_s);
        QCOMPARE(interface->valueInterface()->maximumValue().toInt(), 50);
        QCOMPARE(shown.announced, (QStringList{u"started"_s, u"finished"_s}));
    }
};

VELMO_TEST_MAIN(OvixMovableLabelTest)
#include "OvixMovableLabelTest.moc"
