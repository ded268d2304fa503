#include "support/Gestures.h"
#include "support/Picture.h"
#include "support/TestCase.h"
#include "support/Told.h"

#include "foundation/QClickableLabel.h"
#include "foundation/QClickableWidget.h"

#include <QMouseEvent>
#include <QPointer>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

/// A clickable label and a clickable widget in a window that says what reaches it.
struct Shown : QWidget
{
    QPointer<QClickableLabel> label = new QClickableLabel(u"text"_s, this);
    QClickableWidget *widget = new QClickableWidget(this);
    Told told{label.data()};

    Shown()
    {
        resize(400, 200);
        label->setGeometry(10, 10, 60, 20);
        widget->setGeometry(10, 40, 60, 20);
        told.listenTo(widget);
        Gestures::show(this);
    }

protected:
    void mousePressEvent(QMouseEvent *) override { told.add(u"parent:press"_s); }
    void mouseReleaseEvent(QMouseEvent *) override { told.add(u"parent:release"_s); }
    void mouseDoubleClickEvent(QMouseEvent *) override { told.add(u"parent:double"_s); }
    void keyPressEvent(QKeyEvent *) override { told.add(u"parent:key"_s); }
};

} // namespace

using Act = std::function<void(Shown &)>;
Q_DECLARE_METATYPE(Act)

class ClickableTest : public TestCase
{
    Q_OBJECT

private slots:
    void tellsOfClicksAndLeavesTheRestToTheParent_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<QString>("told");
        const auto row = [](const char *name, const char *told, const Act &act) {
            QTest::newRow(name) << act << QString::fromLatin1(told);
        };
        const Act click = [](Shown &shown) { Gestures::click(shown.label); };
        const Act doubleClick = [](Shown &shown) { Gestures::doubleClick(shown.label); };
        const auto ignoring = [](const Act &act) {
            return [act](Shown &shown) {
                shown.label->setIgnoreSingleClick(true);
                act(shown);
            };
        };
        row("press", "clicked", [](Shown &shown) { Gestures::press(shown.label); });
        row("double click", "clicked, clickReleased, doubleClicked, clickReleased", doubleClick);
        row("right double click", "parent:press, parent:release, parent:double, parent:release",
            [](Shown &shown) { Gestures::doubleClick(shown.label, Qt::RightButton); });
        row("click, ignored", "parent:press, parent:release", ignoring(click));
        row("double click, singles ignored", "parent:press, parent:release, doubleClicked, parent:release",
            ignoring(doubleClick));
        row("click, ignored, on a text that can be selected", "parent:press, parent:release",
            ignoring([](Shown &shown) {
                shown.label->setTextInteractionFlags(Qt::TextSelectableByMouse);
                Gestures::click(shown.label);
            }));
        row("widget", "clicked, parent:release", [](Shown &shown) { Gestures::click(shown.widget); });
        row("widget, right", "parent:press, parent:release",
            [](Shown &shown) { Gestures::click(shown.widget, Qt::RightButton); });
    }
    void tellsOfClicksAndLeavesTheRestToTheParent()
    {
        QFETCH(Act, act);
        Shown shown;
        act(shown);
        QTEST(shown.told.taken(), "told");
    }

    void selectsTextAsLabelsDo()
    {
        Shown shown;
        shown.label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        Gestures::send(shown.label, QEvent::MouseButtonPress, {0, 10});
        Gestures::send(shown.label, QEvent::MouseMove, {59, 10});
        QCOMPARE(shown.label->selectedText(), u"text"_s);
    }

    void disabledOnesTellNothing()
    {
        Shown shown;
        shown.label->setEnabled(false);
        shown.widget->setEnabled(false);
        Gestures::doubleClick(shown.label);
        Gestures::click(shown.widget);
        shown.label->click();
        shown.widget->click();
        QVERIFY(!shown.told.taken().contains(u"lick"_s));
    }

    void mayBeDeletedByItsLinks()
    {
        Shown shown;
        connect(shown.label, &QLabel::linkActivated, &shown, [&shown] { delete shown.label; });
        shown.label->setText(u"<a href='x'>xxxxxxxxxxxxxxxxxx</a>"_s);
        Gestures::click(shown.label);
        QVERIFY(!shown.label);
    }

    void isPressedByKeysOnceItMayHaveTheFocus()
    {
        Shown shown;
        const auto told = [&shown](QWidget *widget, Qt::Key key, bool repeated = false) {
            shown.told.taken();
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(), repeated);
            QCoreApplication::sendEvent(widget, &event);
            return shown.told.taken();
        };
        for (QWidget *widget : {static_cast<QWidget *>(shown.label), static_cast<QWidget *>(shown.widget)}) {
            const QString pressed = widget == shown.label ? u"clicked, clickReleased"_s : u"clicked"_s;
            Gestures::focus(widget);
            QCOMPARE(told(widget, Qt::Key_Space), u"parent:key"_s);
            widget->setFocusPolicy(Qt::StrongFocus);
            auto *child = new QWidget(widget);
            child->show();
            Gestures::focus(child);
            QCOMPARE(told(child, Qt::Key_Space), u"parent:key"_s);
            Gestures::focus(widget);
            for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
                QCOMPARE(told(widget, key), pressed);
                QCOMPARE(told(widget, key, true), QString());
            }
            QCOMPARE(told(widget, Qt::Key_A), u"parent:key"_s);
        }
        Gestures::focus(shown.label);
        shown.label->setIgnoreSingleClick(true);
        QCOMPARE(told(shown.label, Qt::Key_Space), QString());
        // Links that answer keys keep them.
        shown.label->setIgnoreSingleClick(false);
        shown.label->setText(u"<a href='x'>link</a>"_s);
        shown.label->setTextInteractionFlags(Qt::TextBrowserInteraction);
        QVERIFY(!told(shown.label, Qt::Key_Return).contains(u"clicked"_s));
    }

    void ringsTheFocus()
    {
        Shown shown;
        for (QWidget *widget : {static_cast<QWidget *>(shown.label), static_cast<QWidget *>(shown.widget)}) {
            QCOMPARE(Picture::colourAt(widget, {30, 0}).alpha(), 0);
            widget->setFocusPolicy(Qt::StrongFocus);
            Gestures::focus(widget);
            QCOMPARE(Picture::colourAt(widget, {30, 0}), QColor(116, 211, 252));
        }
        // Texts that answer keys themselves show themselves which part does.
        Gestures::focus(shown.label);
        shown.label->setTextInteractionFlags(Qt::TextBrowserInteraction);
        QCOMPARE(Picture::colourAt(shown.label, {30, 0}).alpha(), 0);
    }
};

VELMO_TEST_MAIN(ClickableTest)
#include "ClickableTest.moc"
