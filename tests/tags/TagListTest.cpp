#include "support/Assistive.h"
#include "support/Gestures.h"
#include "support/TestCase.h"

#include "foundation/VelmoStyle.h"
#include "tags/QListWidgetNoDrag.h"
#include "tags/oVIXTagListWidget.h"
#include "tags/oVIXTagListWidgetItem.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A list of three tags in a window that counts the keys that reach it.
struct Shown : QWidget
{
    QPointer<oVIXTagListWidget> list = new oVIXTagListWidget(this);
    int drags = 0;
    int keys = 0;

    Shown()
    {
        resize(200, 200);
        list->setGeometry(rect());
        for (const QString &text : {u"Tree"_s, u"House"_s, u"Road"_s}) {
            auto *item = new QListWidgetItem(list);
            item->setSizeHint({0, 20});
            auto *chip = new oVIXTagListWidgetItem;
            chip->setText(text);
            list->setItemWidget(item, chip);
        }
        connect(list, &oVIXTagListWidget::startDragSignal, this, [this] { ++drags; });
        Gestures::show(this);
    }
    ~Shown() override { delete list; }

    void send(QEvent::Type type, QPoint point, Qt::MouseButton button = Qt::LeftButton) const
    {
        Gestures::send(list->viewport(), type, point, button);
    }
    int dragsAfter(QPoint press, QPoint move)
    {
        drags = 0;
        send(QEvent::MouseButtonPress, press);
        send(QEvent::MouseMove, move);
        return drags;
    }

protected:
    void keyPressEvent(QKeyEvent * /*event*/) override { ++keys; }
};

} // namespace

class TagListTest : public TestCase
{
    Q_OBJECT

private slots:
    void writesItsSheet()
    {
        oVIXTagListWidget list;
        QCOMPARE(list.getTagColor(), QColor(105, 105, 105));
        QCOMPARE(list.getTextColor(), QColor(39, 39, 39));
        list.setTagColors(QColor(100, 50, 0), QColor(1, 2, 3));
        QCOMPARE(
            list.styleSheet(),
            u"QListWidget {\tbackground:transparent;\tcolor: transparent;}oVIXTagListWidgetItem {\tmargin-left:5px;"
            "\tmargin-top:2px;\tmargin-bottom:2px;\tmargin-right:5px;\tpadding-left:10px;   font-size:11px;  "
            "\tfont-family:Inter;\tbackground:rgb(100, 50, 0);\tcolor:rgb(1, 2, 3);\tborder:0px;\tborder-radius:"
            "3px;}oVIXTagListWidgetItem:disabled {\tbackground:rgb(100, 50, 0);\tcolor:rgb(1, 2, 3);}"
            "oVIXTagListWidgetItem:hover {\tbackground:rgb(120, 60, 0);}QListWidget::item:selected {\tbackground: "
            "transparent;\tcolor:transparent;}"_s);
        oVIXTagListWidgetItem chip;
        chip.setText(u"<b>Tree</b>"_s);
        QCOMPARE(chip.maximumSize(), QSize(VelmoStyle::styleDockTextWidth(chip.text()) + 40, 20));
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&chip);
        QCOMPARE(accessible->role(), QAccessible::ListItem);
        QCOMPARE(accessible->text(QAccessible::Name), chip.text());
        QVERIFY(!Assistive::act(&chip)); // it is in no list
    }

    void isPressedByAssistiveTools()
    {
        Shown shown;
        QAccessibleInterface *list = Assistive::of(shown.list);
        QCOMPARE(list->childCount(), 3);
        QAccessibleInterface *house = list->child(1);
        QVERIFY(house->text(QAccessible::Name) == u"House"_s && house->parent() == list);
        QVERIFY(house->state().selectable && !house->state().selected && !house->state().focusable);
        QSignalSpy pressed(shown.list, &QListWidget::itemPressed);
        QVERIFY(Assistive::act(house->object()));
        QVERIFY(house->state().selected);
        QCOMPARE(pressed, (QList<QVariantList>{{QVariant::fromValue(shown.list->item(1))}}));
        connect(shown.list, &QListWidget::itemPressed, this, [&shown] { delete shown.list; });
        QVERIFY(Assistive::act(list->child(2)->object()));
        QVERIFY(!shown.list);
    }

    /// The reverse of what a drag usually takes.
    void startsADragWithASmallMove()
    {
        const int distance = QApplication::startDragDistance();
        Shown shown;
        QCOMPARE(shown.dragsAfter({100, 10}, {101, 10}), 0); // switched off
        shown.list->setEmitDrag(true);
        QCOMPARE(shown.dragsAfter({100, 150}, {101, 150}), 0); // below the last row
        QCOMPARE(shown.dragsAfter({100, 10}, {100 + distance, 10}), 0);
        shown.send(QEvent::MouseMove, {100 + distance - 1, 10}); // still armed
        shown.send(QEvent::MouseMove, {101, 10});
        QCOMPARE(shown.drags, 1);
    }

    void tellsOfThePressedTagOnRelease_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("told");
        QTest::newRow("single") << int(QAbstractItemView::SingleSelection) << 1;
        QTest::newRow("multi") << int(QAbstractItemView::MultiSelection) << 0;
        QTest::newRow("none") << int(QAbstractItemView::NoSelection) << 0;
    }
    void tellsOfThePressedTagOnRelease()
    {
        QFETCH(int, mode);
        QFETCH(int, told);
        Shown shown;
        shown.list->setSelectionMode(QAbstractItemView::SelectionMode(mode));
        shown.send(QEvent::MouseButtonPress, {100, 30});
        const QSignalSpy pressed(shown.list, &QListWidget::itemPressed);
        shown.send(QEvent::MouseButtonRelease, {100, 30}, Qt::RightButton);
        shown.send(QEvent::MouseButtonRelease, {100, 30});
        QCOMPARE(pressed.count(), told);
        if (told)
            QCOMPARE(pressed[0][0].value<QListWidgetItem *>(), shown.list->item(1));
    }

    void leavesKeysToTheParent()
    {
        Shown shown;
        QCOMPARE(shown.list->focusPolicy(), Qt::NoFocus);
        shown.list->setCurrentRow(0);
        QTest::keyClick(shown.list, Qt::Key_Down);
        QTest::keyClick(shown.list, Qt::Key_T);
        QCOMPARE(shown.keys, 2);
        QCOMPARE(shown.list->currentRow(), 0);
    }

    void aPressedPointerDragsNoSelection()
    {
        struct List : QListWidgetNoDrag
        {
            using QListWidgetNoDrag::mouseMoveEvent;
        } list;
        list.setSelectionMode(QAbstractItemView::ExtendedSelection);
        for (const QString &text : {u"a"_s, u"b"_s, u"c"_s})
            list.addItem(text);
        Gestures::show(&list);
        QTest::mousePress(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(0)).center());
        const QPoint below = list.visualItemRect(list.item(2)).center();
        for (const Qt::MouseButtons held : {Qt::MouseButtons(Qt::LeftButton), Qt::MouseButtons(Qt::NoButton)}) {
            QMouseEvent move(QEvent::MouseMove, below, list.viewport()->mapToGlobal(below), Qt::NoButton, held, {});
            list.mouseMoveEvent(&move);
            QCOMPARE(move.isAccepted(), held == Qt::NoButton);
            QCOMPARE(list.selectedItems().size(), 1);
        }
    }
};

VELMO_TEST_MAIN(TagListTest)
#include "TagListTest.moc"
