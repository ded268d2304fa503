#include "support/Events.h"
#include "support/Gestures.h"
#include "support/TestCase.h"
#include "support/Told.h"

#include "foundation/QClickableLabel.h"
#include "tags/VelmoDrag.h"
#include "tags/oVIXAutoHideLine.h"
#include "tags/oVIXDragDropListWidget.h"

#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

struct List : oVIXDragDropListWidget
{
    using oVIXDragDropListWidget::dragEnterEvent;
    using oVIXDragDropListWidget::dragMoveEvent;
    using oVIXDragDropListWidget::dropEvent;

    explicit List(const QStringList &names = {}, DRAG_BUTTON button = BUTTON_REMOVE)
    {
        resize(200, 200);
        for (const QString &name : names)
            addCustomItem(name, button, true);
    }
    oVIXDragTag *tag(int row) const { return qobject_cast<oVIXDragTag *>(itemWidget(item(row))); }
    QStringList texts() const
    {
        QStringList texts;
        for (int row = 0; row < count(); ++row)
            texts << item(row)->text();
        return texts;
    }
};

void drag(oVIXDragTag *tag, QPoint hotSpot)
{
    QMouseEvent move(QEvent::MouseMove, hotSpot, tag->mapToGlobal(hotSpot), Qt::NoButton, Qt::LeftButton, {});
    emit tag->startDrag(&move);
}

} // namespace

class DropListTest : public TestCase
{
    Q_OBJECT

private slots:
    void keepsTagsSortedAheadOfTheAddTag()
    {
        List list({u"Gamma"_s, u"Alpha"_s});
        QListWidgetItem *add = list.addCustomItem(u"New"_s, BUTTON_ADD, true);
        const QListWidgetItem *beta = list.addCustomItem(u"beta"_s, BUTTON_REMOVE, true);
        QCOMPARE(list.item(1), beta);
        list.addCustomItem(u"zeta"_s, BUTTON_REMOVE, true);
        list.addCustomItem(u"BETA"_s, BUTTON_REMOVE, true); // after its equal
        list.addCustomItem(u"appended"_s, BUTTON_REMOVE, false);
        QCOMPARE(list.texts().join(u' '), u"Alpha beta BETA Gamma zeta New appended"_s);
        QVERIFY(!(add->flags() & Qt::ItemIsSelectable));
        QCOMPARE(add->sizeHint(), QSize(0, 20));
        list.addCustomItem(u"<b>1 MB</b>\0"_s + QString(1 << 20, u'x'), BUTTON_REMOVE, true);
        list.addCustomItem(QString(), BUTTON_REMOVE, true);
        QCOMPARE(list.item(0)->text(), QString());
    }

    /// Against a plain walk, whatever the owner does with the rows in between.
    void findsThePlaceThatAWalkFinds()
    {
        const quint32 seed = 20261121;
        QRandomGenerator random(seed);
        List list;
        QListWidgetItem *add = nullptr;
        for (int round = 0; round < 1500; ++round) {
            const int any = list.count() ? random.bounded(list.count()) : 0;
            switch (random.bounded(24)) {
            case 0:
                list.addCustomItem(u"m"_s, BUTTON_NONE, false);
                break;
            case 1:
                if (list.count() && list.item(any) != add)
                    list.item(any)->setText(u"%1"_s.arg(QChar(u'a' + random.bounded(26))));
                break;
            case 2:
            case 3:
                if (list.item(any) == add)
                    add = nullptr;
                delete list.takeItem(any);
                break;
            case 4:
                list.sortItems(random.bounded(2) ? Qt::AscendingOrder : Qt::DescendingOrder);
                break;
            case 5:
                if (random.bounded(10) == 0) {
                    list.clear();
                    add = nullptr;
                }
                break;
            case 6:
                if (!add)
                    add = list.addCustomItem(u"k"_s, BUTTON_ADD, true);
                break;
            case 7:
                list.insertItem(any, u"d"_s);
                break;
            default:
                const QString text(1, QChar((random.bounded(2) ? u'a' : u'A') + random.bounded(26)));
                const QStringList before = list.texts();
                int place = 0;
                while (place < before.size() && list.item(place) != add
                       && before[place].compare(text, Qt::CaseInsensitive) <= 0)
                    ++place;
                const QListWidgetItem *item = list.addCustomItem(text, BUTTON_REMOVE, true);
                QVERIFY2(list.row(item) == place, qPrintable(u"seed %1 round %2"_s.arg(seed).arg(round)));
            }
        }
    }

    void asksWithRowNumbers()
    {
        List list({u"a"_s, u"b"_s, u"c"_s});
        list.addCustomItem(u"New"_s, BUTTON_ADD, true);
        Told told(static_cast<oVIXDragDropListWidget *>(&list));
        emit list.tag(1)->tagClicked();
        emit list.tag(2)->doubleClick();
        emit list.tag(3)->tagAdd(u"d"_s);
        const std::unique_ptr<QListWidgetItem> taken(list.takeItem(0));
        emit list.tag(1)->tagClicked();
        list.fnWantsAction();
        list.fnWantsMove();
        list.dragTriggered(nullptr);
        QCOMPARE(told.taken(), u"wantsChange 1, wantsMove 2, addNewItem d, wantsChange 1"_s);
    }

    void changesTags()
    {
        List list({u"a"_s, u"A"_s, u"b"_s});
        QListWidgetItem *add = list.addCustomItem(u"New"_s, BUTTON_ADD, true);
        list.setEnabledItems({u"A"_s, u"b"_s, u"x"_s});
        QCOMPARE((QList{list.tag(0)->isEnabled(), list.tag(1)->isEnabled(), list.tag(2)->isEnabled(),
                        list.tag(3)->isEnabled()}),
                 (QList{false, true, true, true}));
        const auto isRed = [&list](int row) { return list.tag(row)->styleSheet().contains(u"rgb(255, 0, 0)"_s); };
        list.setTagTextColor(Qt::red, Qt::white, 1);
        list.setTagTextColor(Qt::red, Qt::white, 4);
        list.addCustomItem(u"c"_s, BUTTON_REMOVE, true);
        QVERIFY(!isRed(0) && isRed(1) && !isRed(2) && !isRed(3));
        list.setTagTextColor(Qt::red, Qt::white, -1);
        list.addCustomItem(u"d"_s, BUTTON_REMOVE, true);
        QVERIFY(isRed(0) && isRed(3) && isRed(4));
        list.setShowAllButtons(false);
        list.addCustomItem(u"e"_s, BUTTON_REMOVE_OPTIONAL, true);
        QVERIFY(list.tag(5)->findChildren<QWidget *>().isEmpty());

        list.enableAddButton(false);
        QVERIFY(add->isHidden());
        list.enableAddButton(true);
        QVERIFY(!add->isHidden());
    }

    /// The toolkit tells of the end of rows in these ways.
    void forgetsAnAddTagThatIsGone()
    {
        List list({u"a"_s});
        const QList<std::function<void()>> ends{
            [&] { list.clear(); },
            [&] { list.QListWidget::clear(); },
            [&] { delete list.takeItem(list.count() - 1); },
            [&] { delete list.item(list.count() - 1); },
            [&] { list.model()->removeRow(list.count() - 1); },
        };
        for (const auto &end : ends) {
            list.addCustomItem(u"b"_s, BUTTON_ADD, true);
            end();
            list.enableAddButton(false);
            list.addCustomItem(u"c"_s, BUTTON_NONE, true);
            QCOMPARE(list.texts().last(), u"c"_s);
        }
    }

    void dragsAPictureOfTheTag()
    {
        List list({u"Tree"_s});
        Gestures::show(&list);
        QVERIFY(Events::untilIdle());
        list.setDropType(VelmoDropData::Categories);
        drag(list.tag(0), {12, 7});
        QPointer<VelmoDrag> drag = list.findChild<VelmoDrag *>();
        QVERIFY(drag);
        QCOMPARE(drag->hotSpot(), QPoint(12, 7));
        QCOMPARE(drag->supportedActions(), Qt::CopyAction);
        const VelmoDropData payload(drag->mimeData());
        QCOMPARE(payload.getType(), VelmoDropData::Categories);
        QCOMPARE(payload.getItemNames(), QStringList(u"Tree"_s));
        QCOMPARE(drag->pixmap().deviceIndependentSize().toSize(), list.tag(0)->size());
        QCOMPARE(drag->pixmap().devicePixelRatio(), list.devicePixelRatio());
        const QImage picture = drag->pixmap().toImage();
        QCOMPARE(picture.pixelColor(picture.rect().center()).alpha(), 255);
        QTRY_VERIFY(!drag);

        QPointer<VelmoDrag> empty = new VelmoDrag;
        QCOMPARE(empty->parent(), QCoreApplication::instance());
        QCOMPARE(empty->exec(Qt::CopyAction), Qt::IgnoreAction); // nothing to drag
        QTRY_VERIFY(!empty);
    }

    void acceptsItsTypeOnly_data()
    {
        QTest::addColumn<int>("listType");
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("same") << 1 << 1 << true;
        QTest::newRow("default") << 0 << 0 << true;
        QTest::newRow("other") << 1 << 0 << false;
        QTest::newRow("no payload") << 0 << -1 << false;
        QTest::newRow("no payload, no type") << -1 << -1 << false;
    }
    void acceptsItsTypeOnly()
    {
        QFETCH(int, listType);
        QFETCH(int, type);
        QFETCH(bool, accepted);
        List list({u"a"_s});
        list.setDropType(VelmoDropData::Type(listType));
        const VelmoDropData payload({{u"b"_s, {}}}, VelmoDropData::Type(type));
        const std::unique_ptr<QMimeData> mime(payload.getMimeData());
        const QSignalSpy dropped(&list, &List::dropTriggered);
        QDragEnterEvent enter({5, 5}, Qt::CopyAction | Qt::MoveAction, mime.get(), Qt::LeftButton, {});
        QDragMoveEvent move({5, 5}, Qt::CopyAction | Qt::MoveAction, mime.get(), Qt::LeftButton, {});
        for (QDragMoveEvent *event : {static_cast<QDragMoveEvent *>(&enter), &move}) {
            event->setDropAction(Qt::IgnoreAction);
            event->ignore();
        }
        list.dragEnterEvent(&enter);
        list.dragMoveEvent(&move);
        for (const QDragMoveEvent *event : {static_cast<QDragMoveEvent *>(&enter), &move}) {
            QCOMPARE(event->isAccepted(), accepted);
            QCOMPARE(event->dropAction(), accepted ? event->proposedAction() : Qt::IgnoreAction);
        }
        QDropEvent drop({5, 5}, Qt::CopyAction, mime.get(), Qt::LeftButton, {});
        list.dropEvent(&drop);
        QCOMPARE(dropped.count(), 1);
        QCOMPARE(list.texts(), QStringList(u"a"_s));
    }

    void placesTagsOnScreen()
    {
        List list;
        Gestures::show(&list);
        for (int i = 0; i < 4; ++i)
            list.addCustomItem(u"tag %1"_s.arg(9 - i), BUTTON_REMOVE, true);
        QVERIFY(Events::untilIdle());
        for (int row = 0; row < 4; ++row)
            QCOMPARE(list.tag(row)->pos(), QPoint(0, 20 * row));
        QCOMPARE(list.selectionMode(), QAbstractItemView::NoSelection);
        Gestures::focus(&list);
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Down);
        QCOMPARE(list.currentRow(), 1);
        QVERIFY(list.selectedItems().isEmpty());
    }

    void showsTagsThatComeIntoView()
    {
        List list;
        Gestures::show(&list);
        for (int i = 0; i < 100; ++i)
            list.addCustomItem(u"tag %1"_s.arg(100 + i), BUTTON_REMOVE, true);
        list.setTagTextColor(Qt::red, Qt::white, -1);
        QVERIFY(Events::untilIdle());
        const auto isShown = [&list](int row) {
            const oVIXDragTag *tag = list.tag(row);
            return tag->isVisible() && tag->pos() == list.visualItemRect(list.item(row)).topLeft()
                && tag->findChild<QClickableLabel *>()->isVisible();
        };
        QVERIFY(isShown(0) && isShown(9) && !list.tag(40)->isVisible());
        list.scrollToItem(list.item(40));
        QVERIFY(isShown(40) && !list.tag(70)->isVisible());
        QCOMPARE(list.tag(40)->grab().toImage().pixelColor(80, 12), QColor(Qt::red));
        for (int i = 0; i < 30; ++i)
            delete list.takeItem(41);
        QVERIFY(Events::untilIdle());
        QVERIFY(isShown(41) && list.tag(41)->text() == u"tag 171"_s && !list.tag(69)->isVisible());
        list.scrollToTop();
        list.hide();
        list.resize(200, 2000);
        list.show();
        QVERIFY(Events::untilIdle());
        QVERIFY(isShown(0) && isShown(60) && isShown(69));
    }

    void mayBeClearedByItsSignals()
    {
        List list({u"a"_s, u"b"_s});
        Gestures::show(&list);
        QVERIFY(Events::untilIdle());
        connect(&list, &List::wantsMove, &list, [&list] { list.clear(); });
        Gestures::doubleClick(list.tag(1));
        QCOMPARE(list.count(), 0);
    }
};

VELMO_TEST_MAIN(DropListTest)
#include "DropListTest.moc"
