#include "SceneRows.h"
#include "support/Assistive.h"
#include "support/Picture.h"
#include "support/TestCase.h"

#include <QAccessible>
#include <QScrollBar>
#include <QSignalSpy>

using namespace SceneRows;

namespace {

const char *const rowLabels[] = {"nameLabel",   "statusLabel",   "lastModifiedLabel",  "bakeLabel",
                                 "actorsLabel", "vehiclesLabel", "timeFramerateLabel", "versionLabel"};

QWidget *headerOf(const VelmoScenesTable &table)
{
    return part(&table, "labelsWidget");
}

} // namespace

class VelmoScenesTableTest : public TestCase
{
    Q_OBJECT

private slots:
    void isBuiltAsDesigned()
    {
        const VelmoScenesTable table;
        QVERIFY(table.isMultiSelectionEnabled());
        const QListWidget *list = listOf(table);
        QCOMPARE(table.styleSheet(),
                 u"QLabel {\tcolor:rgb(219,219,219);\tbackground-color:transparent;}#backgroundWidget "
                 "{\tborder-radius:4px;\tbackground-color:rgb(59,59,59);}QListWidget "
                 "{\tbackground-color:transparent;}QListWidget::item {\tselection-background-color:transparent;}"_s);
        QCOMPARE(list->verticalScrollBar()->styleSheet(),
                 u"QScrollBar:vertical {\twidth: 10px;\tbackground:rgb(59,59,59);   border-radius: "
                 "5px;}QScrollBar::handle:vertical {\tbackground:rgb(81,81,81);\tmargin:2;\tmin-height: "
                 "20px;}QScrollBar::handle:vertical:hover {\tbackground:rgb(116, 211, "
                 "252);}QScrollBar::handle:vertical:disabled {\tbackground:rgb(59,59,59);}"_s);

        const QLayout *header = headerOf(table)->layout();
        QCOMPARE(columnsOf(header).mid(1),
                 QStringList({u"nameLabel, 0-, Scene name"_s, u"statusLabel, 30-30"_s,
                              u"lastModifiedLabel, 160-160, Last modified"_s, u"bakeLabel, 65-65, Bake"_s,
                              u"actorsLabel, 50-50, Actors"_s, u"vehiclesLabel, 50-, Vehicles"_s,
                              u"timeFramerateLabel, 80-80, Time/FPS"_s, u"versionLabel, 65-65, Version"_s}));
    }

    void addsRows()
    {
        VelmoScenesTable table;
        table.addScene(u"a"_s, true, u"today"_s, u"Baked"_s, u"12"_s, u"3"_s, u"10s/25"_s, u"2.5"_s, true);
        add(table, u"b"_s, false);
        const VelmoSceneItem *row = rowAt(table, 0);
        const QListWidget *list = listOf(table);
        QVERIFY(row->isEnabled() && !rowAt(table, 1)->isEnabled());
        QCOMPARE(row->toolTip(), QString());
        QCOMPARE(rowAt(table, 1)->toolTip(), u"Scene not compatible for merge tooltip."_s);
        QCOMPARE(list->item(0)->flags() ^ list->item(1)->flags(), Qt::ItemIsSelectable);
        QCOMPARE(list->item(0)->sizeHint(), QSize(0, 25));
        QCOMPARE(row->minimumHeight(), 16);
        QVERIFY(row->isAddVisible() && !row->isAddEnabled() && !row->isSelected());
        QStringList texts;
        for (const char *label : rowLabels)
            texts << part<QLabel>(row, label)->text();
        QCOMPARE(texts.join(u'|'), u"a||today|Baked|12|3|10s/25|2.5"_s);
        QVERIFY(part<OvixSvgButton>(row, "statusLabel")->hasFilenames());

        table.clearScenes();
        add(table, u"f"_s);
        const auto removed = table.findChildren<VelmoSceneItem *>();
        QCOMPARE(removed.size(), 3); // they live until the next turn
        removed.first()->setName(u"g"_s);
        QVERIFY(table.hasScene(u"F"_s) && !table.hasScene(u"g"_s));
    }

    void scrollsTheSelectionToTheMiddle()
    {
        ShownTable shown;
        fill(*shown.table, 60);
        // At once, before the rows have found their places, and later.
        shown.table->setSelectedRow(30);
        QVERIFY(isCentred(*shown.table, 30));
        QVERIFY(Events::untilIdle());
        QVERIFY(isCentred(*shown.table, 30));
        shown.table->setSelectedScene(u"SCENE 40"_s);
        QVERIFY(isCentred(*shown.table, 40));
        shown.table->setSceneEnabled(u"scene 20"_s, true);
        shown.table->setDefaultSelection();
        QVERIFY(isCentred(*shown.table, 20));

        // A list that is hidden gets its size when it is shown.
        shown.window.hide();
        shown.table->setSelectedRow(40);
        shown.table->resize(760, 200);
        shown.window.show();
        QTRY_VERIFY(isCentred(*shown.table, 40));
    }

    void switchesModes()
    {
        ShownTable shown({u"a"_s});
        for (const bool on : {false, true, true, false}) {
            shown.table->setMultiSelectionEnabled(on);
            shown.table->setEditingEnabled(on);
            add(*shown.table, u"b"_s);
            QVERIFY(Events::untilIdle());
            QCOMPARE(headerOf(*shown.table)->layout()->itemAt(0)->widget()->isVisible(), on);
            for (const int row : {0, shown.table->getSceneCount() - 1}) {
                QCOMPARE(part(shown.row(row), "addButton")->isVisible(), on);
                QVERIFY(QMetaObject::invokeMethod(shown.row(row), "renameTriggered"));
                QCOMPARE(part(shown.row(row), "nameEdit")->isVisible(), on);
                shown.table->finishEditing();
                QVERIFY(!part(shown.row(row), "nameEdit")->isVisible());
            }
            // One add button at most, below the rows.
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            const auto buttons = shown.viewport()->findChildren<OvixSvgButton *>(QString(), Qt::FindDirectChildrenOnly);
            QCOMPARE(buttons.size(), int(on));
            QCOMPARE(flawOf(*shown.table, on), QString());
            if (on) {
                QCOMPARE(buttons[0]->firstFilename(), u":/Windows/AddButton"_s);
                QCOMPARE(buttons[0]->geometry(),
                         QRect((shown.viewport()->width() - 16) / 2, shown.table->getSceneCount() * 25, 16, 16));
                QVERIFY(
                    !listOf(*shown.table)->item(shown.table->getSceneCount())->flags().testFlag(Qt::ItemIsSelectable));
            }
        }
    }

    void asksForAScene()
    {
        ShownTable shown({u"a"_s});
        shown.table->setSelectedRow(0);
        QSignalSpy pressed(shown.table, &VelmoScenesTable::newScenePressed);
        OvixSvgButton *button = newSceneButton(*shown.table);
        const QImage atRest = Picture::of(button);
        Gestures::hover(button);
        QVERIFY(Picture::of(button) != atRest);
        Gestures::click(button);
        Gestures::click(button, Qt::RightButton);
        QCOMPARE(pressed.count(), 1);
        QCOMPARE(shown.table->getSelectedRow(), 0);

        QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(button);
        QCOMPARE(spoken->role(), QAccessible::Button);
        QCOMPARE(spoken->text(QAccessible::Name), u"New scene"_s);
        QVERIFY(Assistive::act(button));
        QCOMPARE(pressed.count(), 2);
    }

    void selectsARowClickedAnywhere()
    {
        ShownTable shown({u"a"_s, u"b"_s});
        add(*shown.table, u"c"_s, false);
        QVERIFY(Events::untilIdle());
        for (const char *label : rowLabels) {
            shown.table->setSelectedRow(0);
            Gestures::click(part(shown.row(1), label));
            QVERIFY2(shown.table->getSelectedRow() == 1, label);
            shown.table->clearSelection();
            Gestures::doubleClick(part(shown.row(2), label));
            QVERIFY2(shown.table->getSelectedRow() < 0 && part(shown.row(2), "nameEdit")->isHidden(), label);
        }
        Gestures::click(part(shown.row(2), "addButton"));
        QVERIFY(!shown.row(2)->isAddEnabled());
        QVERIFY(!QAccessible::queryAccessibleInterface(shown.row(2))->state().selectable);
    }

    void givesRowsTheWidthsOfTheHeader()
    {
        ShownTable shown({u"a"_s});
        const auto labels = {"statusLabel", "lastModifiedLabel",  "bakeLabel",
                             "actorsLabel", "timeFramerateLabel", "versionLabel"};
        int width = 40;
        for (const char *label : labels)
            part(headerOf(*shown.table), label)->setFixedWidth(width += 7);
        shown.table->resize(960, 300);
        add(*shown.table, u"b"_s);
        QVERIFY(Events::untilIdle());
        for (const int row : {0, 1}) {
            width = 40;
            for (const char *label : labels)
                QCOMPARE(part(shown.row(row), label)->width(), width += 7);
            QCOMPARE(part(shown.row(row), "vehiclesLabel")->maximumWidth(), QWIDGETSIZE_MAX);
            QCOMPARE(shown.row(row)->width(), shown.viewport()->width());
        }
    }

    void restylesOnlyRowsThatChange()
    {
        VelmoScenesTable table;
        fill(table, 100);
        Restyles restyled(table);
        table.setSelectedRow(5);
        QCOMPARE(restyled.taken(), QList{5});
        table.setSelectedScene(u"scene 70"_s);
        QCOMPARE(restyled.taken(), QList({5, 70}));
        table.setSceneEnabled(u"scene 70"_s, true);
        QCOMPARE(restyled.taken(), QList{70});
        table.clearSelection(); // a chosen row looks selected anyway
        table.setSceneEnabled(u"scene 6"_s, false);
        QCOMPARE(restyled.taken(), QList<int>());
    }

    void asksForANewName()
    {
        ShownTable shown({u"a"_s, u"b"_s});
        QSignalSpy renamed(shown.table, &VelmoScenesTable::renameRequested);
        connect(shown.table, &VelmoScenesTable::renameRequested, shown.table, &VelmoScenesTable::renameScene);
        // The two clicks select the row before they start the renaming.
        for (const QString &name : {u"c"_s, u"C"_s}) {
            const QString before = shown.row(1)->getName();
            QLineEdit *edit = startRenaming(shown.row(1));
            QTest::keyClicks(edit, name);
            // A reader may add scenes meanwhile, and keys that a line does not use stay away from the list.
            add(*shown.table, u"d"_s);
            QVERIFY(Events::untilIdle());
            for (const Qt::Key key : {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Up, Qt::Key_PageUp}) {
                QTest::keyClick(edit, key);
                QCOMPARE(shown.table->getSelectedRow(), 1);
            }
            QVERIFY(edit->isVisible() && edit->hasFocus());
            QCOMPARE(edit->text(), name);
            QTest::keyClick(edit, Qt::Key_Return);
            QTRY_COMPARE(renamed.count(), 1);
            QCOMPARE(renamed.takeFirst(), QVariantList({before, name}));
            QCOMPARE(shown.table->getSelectedScene(), name);
        }
    }

    void dropsPendingRenames_data()
    {
        QTest::addColumn<bool>("ended");
        QTest::addColumn<bool>("cleared");
        for (const bool ended : {false, true}) {
            for (const bool cleared : {false, true})
                QTest::addRow("ended %d, cleared %d", ended, cleared) << ended << cleared;
        }
    }
    void dropsPendingRenames()
    {
        QFETCH(bool, ended);
        QFETCH(bool, cleared);
        ShownTable shown({u"a"_s, u"b"_s});
        QSignalSpy renamed(shown.table, &VelmoScenesTable::renameRequested);
        const auto rename = [&](bool ends) {
            QLineEdit *edit = startRenaming(shown.row(0));
            QTest::keyClicks(edit, u"x"_s);
            if (ends)
                QTest::keyClick(edit, Qt::Key_Return);
        };
        rename(ended);
        if (cleared) {
            shown.table->clearScenes();
            add(*shown.table, u"a"_s);
        } else {
            shown.table->finishEditing();
        }
        QVERIFY(Events::untilIdle());
        QCOMPARE(renamed.count(), 0);
        rename(true); // the next one gets through, once
        QVERIFY(Events::untilIdle());
        QCOMPARE(renamed.count(), 1);
    }
};

VELMO_TEST_MAIN(VelmoScenesTableTest)
#include "VelmoScenesTableTest.moc"
