#include "SceneRows.h"
#include "support/TestCase.h"

#include <QApplication>

#include <algorithm>
#include <functional>

using namespace SceneRows;

namespace {

bool hasPlacedRows(const ShownTable &shown)
{
    for (int row = 0; row < shown.table->getSceneCount(); ++row) {
        if (shown.row(row)->geometry() != QRect(0, row * 25, shown.viewport()->width(), 25))
            return false;
    }
    return true;
}

/// Whether nothing below a widget is kept from painting.
bool allPaint(const QWidget *widget)
{
    const QList<QWidget *> parts = widget->findChildren<QWidget *>();
    return std::all_of(parts.cbegin(), parts.cend(), std::mem_fn(&QWidget::updatesEnabled));
}

} // namespace

class DeferredListTest : public TestCase
{
    Q_OBJECT

private slots:
    void placesRowsAtTheNextTurn();
    void keepsNewRowsAwayFromThePointer();
    void paintsOnceForAllRows();
    void buildsRowsInTheirPlace();
    void keepsUpdatesDisabled_data();
    void keepsUpdatesDisabled();
    void leavesAHeldRowAlone();
    void paintsWhateverHappensInMidFill_data();
    void paintsWhateverHappensInMidFill();
    void mayGoInMidFill();
};

void DeferredListTest::placesRowsAtTheNextTurn()
{
    ShownTable shown;
    fill(*shown.table, 10);
    QVERIFY(!hasPlacedRows(shown));
    QTRY_VERIFY(hasPlacedRows(shown));
    fill(*shown.table, 10);
    QVERIFY(!hasPlacedRows(shown));
    QTRY_VERIFY(hasPlacedRows(shown));

    shown.table->clearScenes();
    fill(*shown.table, 3);
    QTRY_VERIFY(hasPlacedRows(shown));
}

/// A widget that waits for its place must not come under the pointer.
void DeferredListTest::keepsNewRowsAwayFromThePointer()
{
    ShownTable shown({u"a"_s});
    Gestures::hover(part(shown.row(0), "nameLabel"));
    Events::Count left(shown.row(0), QEvent::Leave);
    for (int i = 0; i < 3; ++i) {
        add(*shown.table, u"b"_s);
        QVERIFY(shown.row(0)->isAncestorOf(shown.viewport()->childAt(5, 5)));
        QVERIFY(Events::untilIdle());
    }
    QCOMPARE(left.taken(), 0);
    const QRect button = newSceneButton(*shown.table)->geometry();
    QCOMPARE(button, QRect((shown.viewport()->width() - 16) / 2, 4 * 25, 16, 16));
}

void DeferredListTest::paintsOnceForAllRows()
{
    ShownTable shown;
    Events::Count paints(shown.viewport(), QEvent::Paint);
    fill(*shown.table, 10);
    QVERIFY(!shown.viewport()->updatesEnabled()); // nor does a new row ask for a repaint of its own
    Events::Count rowPaints(shown.row(3), QEvent::Paint);
    QVERIFY(Events::untilIdle());
    QVERIFY(paints.taken() > 0);
    QVERIFY(rowPaints.taken() > 0);
    QVERIFY(allPaint(shown.viewport()));

    // A later change of one row shows.
    shown.row(3)->setSelected(true);
    QVERIFY(Events::untilIdle());
    QVERIFY(rowPaints.taken() > 0);
}

/// A row that changes its parent is styled a second time.
void DeferredListTest::buildsRowsInTheirPlace()
{
    class Moves : public QObject
    {
    public:
        int count = 0;

    protected:
        bool eventFilter(QObject *watched, QEvent *event) override
        {
            count += event->type() == QEvent::ParentChange
                && (qobject_cast<VelmoSceneItem *>(watched) || qobject_cast<OvixSvgButton *>(watched));
            return false;
        }
    };
    ShownTable shown;
    Moves moves;
    qApp->installEventFilter(&moves);
    fill(*shown.table, 3);
    QVERIFY(Events::untilIdle());
    QCOMPARE(moves.count, 0);
}

void DeferredListTest::keepsUpdatesDisabled_data()
{
    QTest::addColumn<QByteArray>("where");
    QTest::addColumn<bool>("inMidFill");
    for (const char *where : {"window", "table", "list", "viewport"}) {
        QTest::addRow("%s", where) << QByteArray(where) << false;
        QTest::addRow("%s, in mid-fill", where) << QByteArray(where) << true;
    }
}

void DeferredListTest::keepsUpdatesDisabled()
{
    QFETCH(QByteArray, where);
    QFETCH(bool, inMidFill);
    ShownTable shown;
    QWidget *disabled = where == "window" ? &shown.window
        : where == "table"                ? shown.table.data()
        : where == "list"                 ? listOf(*shown.table)
                                          : shown.viewport();
    if (inMidFill)
        fill(*shown.table, 5);
    disabled->setUpdatesEnabled(false);
    Events::Count paints(shown.viewport(), QEvent::Paint);
    fill(*shown.table, 5);
    QVERIFY(Events::untilIdle());
    QVERIFY(hasPlacedRows(shown));
    QVERIFY(!disabled->updatesEnabled());
    QVERIFY(!shown.viewport()->updatesEnabled());
    QCOMPARE(paints.taken(), 0);

    // Enabling them again is enough, from inside a fill as well.
    if (inMidFill)
        fill(*shown.table, 5);
    disabled->setUpdatesEnabled(true);
    QVERIFY(Events::untilIdle());
    QVERIFY(paints.taken() > 0);
    QVERIFY(allPaint(&shown.window));
}

void DeferredListTest::leavesAHeldRowAlone()
{
    ShownTable shown;
    fill(*shown.table, 3);
    shown.row(1)->setUpdatesEnabled(false);
    QVERIFY(Events::untilIdle());
    QVERIFY(shown.row(0)->updatesEnabled());
    QVERIFY(!shown.row(1)->updatesEnabled());
    QVERIFY(shown.row(2)->updatesEnabled());
}

void DeferredListTest::paintsWhateverHappensInMidFill_data()
{
    using Change = std::function<void(ShownTable &)>;
    QTest::addColumn<Change>("before");
    QTest::addColumn<Change>("middle");
    QTest::addColumn<Change>("after");
    const Change nothing = [](ShownTable &) {};
    const Change hideTable = [](ShownTable &shown) { shown.table->hide(); };
    const Change showTable = [](ShownTable &shown) { shown.table->show(); };
    const Change hideWindow = [](ShownTable &shown) { shown.window.hide(); };
    const Change showWindow = [](ShownTable &shown) { shown.window.show(); };
    const Change toggleWindow = [](ShownTable &shown) {
        shown.window.hide();
        shown.window.show();
    };
    const Change turn = [](ShownTable &) { QVERIFY(Events::untilIdle()); };
    const Change clear = [](ShownTable &shown) { shown.table->clearScenes(); };
    const Change select = [](ShownTable &shown) { shown.table->setSelectedRow(99); };
    const Change toOtherWindow = [](ShownTable &shown) {
        shown.table->setParent(nullptr);
        shown.table->setParent(&shown.window);
        shown.table->show();
    };
    QTest::newRow("nothing") << nothing << nothing << nothing;
    QTest::newRow("hidden in the middle") << nothing << hideTable << showTable;
    QTest::newRow("hidden and shown in the middle") << nothing << toggleWindow << nothing;
    QTest::newRow("shown in the middle") << hideTable << showTable << nothing;
    QTest::newRow("shown at the end") << hideTable << nothing << showTable;
    QTest::newRow("window hidden in the middle") << nothing << hideWindow << showWindow;
    QTest::newRow("window shown in the middle") << hideWindow << showWindow << nothing;
    QTest::newRow("turn of the event loop in the middle") << nothing << turn << nothing;
    const Change hideForATurn = [](ShownTable &shown) {
        shown.table->hide();
        QVERIFY(Events::untilIdle());
    };
    QTest::newRow("hidden for a turn in the middle") << nothing << hideForATurn << showTable;
    QTest::newRow("turn while hidden") << hideTable << turn << showTable;
    QTest::newRow("cleared in the middle") << nothing << clear << nothing;
    QTest::newRow("scrolled in the middle") << nothing << select << nothing;
    QTest::newRow("taken out of its window and back") << nothing << toOtherWindow << nothing;
}

void DeferredListTest::paintsWhateverHappensInMidFill()
{
    using Change = std::function<void(ShownTable &)>;
    QFETCH(Change, before);
    QFETCH(Change, middle);
    QFETCH(Change, after);
    ShownTable shown;
    before(shown);
    fill(*shown.table, 4);
    middle(shown);
    fill(*shown.table, 4);
    Events::Count paints(shown.row(shown.table->getSceneCount() - 1), QEvent::Paint);
    after(shown);
    QTRY_VERIFY(hasPlacedRows(shown));
    QVERIFY(Events::untilIdle());
    QVERIFY(paints.taken() > 0);
    QVERIFY(shown.viewport()->updatesEnabled());
    QVERIFY(allPaint(shown.viewport()));
}

void DeferredListTest::mayGoInMidFill()
{
    for (const bool visible : {true, false}) {
        QWidget window;
        auto *table = new VelmoScenesTable(&window);
        if (visible)
            Gestures::show(&window);
        fill(*table, 10);
        table->setSelectedRow(3);
        fill(*table, 10);
        delete table;
        QVERIFY(Events::untilIdle());
    }
}

VELMO_TEST_MAIN(DeferredListTest)
#include "DeferredListTest.moc"
