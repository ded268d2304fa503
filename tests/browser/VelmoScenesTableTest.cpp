#include "SceneRows.h"
#include "support/Picture.h"
#include "support/TestCase.h"

#include <QAccessible>
#include <QLayout>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTranslator>

#include <limits>
#include <memory>

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
    void isBuiltAsDesigned();
    void hasItsHeader_data();
    void hasItsHeader();
    void translatesItsTexts();
    void addsRows();
    void findsTheFirstMatchWhateverTheCase_data();
    void findsTheFirstMatchWhateverTheCase();
    void followsRenames();
    void ignoresUnknownNames();
    void selects_data();
    void selects();
    void choosesWithoutASignal();
    void scrollsTheSelectionToTheMiddle();
    void switchesModes();
    void keepsTheAddButtonLast();
    void asksForAScene();
    void selectsARowClickedAnywhere();
    void leavesIncompatibleRowsAlone();
    void givesRowsTheWidthsOfTheHeader();
    void restylesOnlyRowsThatChange();
};

void VelmoScenesTableTest::isBuiltAsDesigned()
{
    const VelmoScenesTable table;
    QCOMPARE(table.objectName(), u"VelmoScenesTable"_s);
    QCOMPARE(table.size(), QSize(708, 383));
    QVERIFY(table.isMultiSelectionEnabled());
    for (const char *name : {"verticalLayout", "verticalLayout_2"})
        QCOMPARE(part<QLayout>(&table, name)->contentsMargins(), QMargins());

    const QListWidget *list = listOf(table);
    QCOMPARE(list->frameShape(), QFrame::NoFrame);
    QCOMPARE(list->frameShadow(), QFrame::Sunken);
    QCOMPARE(list->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(list->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    QCOMPARE(table.styleSheet(),
             u"QLabel {\tcolor:rgb(219,219,219);\tbackground-color:transparent;}#backgroundWidget "
             "{\tborder-radius:4px;\tbackground-color:rgb(59,59,59);}QListWidget "
             "{\tbackground-color:transparent;}QListWidget::item {\tselection-background-color:transparent;}"_s);
    QCOMPARE(list->verticalScrollBar()->styleSheet(),
             u"QScrollBar:vertical {\twidth: 10px;\tbackground:rgb(59,59,59);   border-radius: "
             "5px;}QScrollBar::handle:vertical {\tbackground:rgb(81,81,81);\tmargin:2;\tmin-height: "
             "20px;}QScrollBar::handle:vertical:hover {\tbackground:rgb(116, 211, "
             "252);}QScrollBar::handle:vertical:disabled {\tbackground:rgb(59,59,59);}"_s);

    QStringList methods;
    for (int i = table.metaObject()->methodOffset(); i < table.metaObject()->methodCount(); ++i)
        methods << QString::fromLatin1(table.metaObject()->method(i).methodSignature());
    QCOMPARE(methods.join(u' '),
             u"selectionChanged() newScenePressed() renameRequested(QString,QString) listSelectionChanged()"_s);
}

void VelmoScenesTableTest::hasItsHeader_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<int>>("widths"); // least and largest
    constexpr int any = QWIDGETSIZE_MAX;
    QTest::newRow("nameLabel") << 1 << u"Scene name"_s << QList{0, any};
    QTest::newRow("statusLabel") << 2 << QString() << QList{30, 30};
    QTest::newRow("lastModifiedLabel") << 3 << u"Last modified"_s << QList{160, 160};
    QTest::newRow("bakeLabel") << 4 << u"Bake"_s << QList{65, 65};
    QTest::newRow("actorsLabel") << 5 << u"Actors"_s << QList{50, 50};
    QTest::newRow("vehiclesLabel") << 6 << u"Vehicles"_s << QList{50, any};
    QTest::newRow("timeFramerateLabel") << 7 << u"Time/FPS"_s << QList{80, 80};
    QTest::newRow("versionLabel") << 8 << u"Version"_s << QList{65, 65};
}

void VelmoScenesTableTest::hasItsHeader()
{
    QFETCH(int, position);
    QFETCH(QList<int>, widths);
    const VelmoScenesTable table;
    const QLayout *layout = headerOf(table)->layout();
    QCOMPARE(layout->contentsMargins(), QMargins(8, 0, 6, 0));
    QCOMPARE(layout->itemAt(0)->widget()->minimumWidth(), 18);
    const auto *label = qobject_cast<QLabel *>(layout->itemAt(position)->widget());
    QCOMPARE(label->objectName(), QLatin1StringView(QTest::currentDataTag()));
    QTEST(label->text(), "text");
    QCOMPARE(label->alignment(), Qt::AlignCenter);
    QCOMPARE(QList({label->minimumWidth(), label->maximumWidth()}), widths);
    QVERIFY(position == 6 || (label->minimumHeight() == 25 && label->maximumHeight() == 25));
}

void VelmoScenesTableTest::translatesItsTexts()
{
    class Shouting : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char *context, const char *text, const char *, int) const override
        {
            return QString::fromLatin1(context) + u": "_s + QString::fromLatin1(text).toUpper();
        }
    };
    Shouting translator;
    QCoreApplication::installTranslator(&translator);
    VelmoScenesTable table;
    table.addScene(u"a"_s, true, {}, {}, {}, {}, {}, {}, false);
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(part<QLabel>(headerOf(table), "bakeLabel")->text(), u"VelmoScenesTable: BAKE"_s);
    QCOMPARE(rowAt(table, 0)->toolTip(), u"VelmoScenesTable: SCENE NOT COMPATIBLE FOR MERGE TOOLTIP."_s);
    QCOMPARE(part(rowAt(table, 0), "statusLabel")->toolTip(), u"VelmoSceneItem: SCENE VERSION WARNING TOOLTIP."_s);
    QCOMPARE(part<QLabel>(rowAt(table, 0), "nameLabel")->text(), u"a"_s);
}

void VelmoScenesTableTest::addsRows()
{
    VelmoScenesTable table;
    QCOMPARE(table.getSceneCount(), 0);
    QCOMPARE(table.getSelectedRow(), -1);
    table.addScene(u"a"_s, true, u"today"_s, u"Baked"_s, u"12"_s, u"3"_s, u"10s/25"_s, u"2.5"_s, true);
    add(table, u"b"_s, false);
    QCOMPARE(namesOf(table), QStringList({u"a"_s, u"b"_s}));
    QCOMPARE(flawOf(table), QString());

    const VelmoSceneItem *row = rowAt(table, 0);
    const QListWidget *list = listOf(table);
    QVERIFY(row->isEnabled() && !rowAt(table, 1)->isEnabled());
    QCOMPARE(row->toolTip(), QString());
    QCOMPARE(rowAt(table, 1)->toolTip(), u"Scene not compatible for merge tooltip."_s);
    QCOMPARE(list->item(0)->flags(), list->item(1)->flags() | Qt::ItemIsSelectable);
    QVERIFY(list->item(0)->flags() != list->item(1)->flags());
    QCOMPARE(list->item(0)->sizeHint(), QSize(0, 25));
    QCOMPARE(row->minimumHeight(), 16);
    QVERIFY(row->isAddVisible() && !row->isAddEnabled() && !row->isSelected());
    QStringList texts;
    for (const char *label : rowLabels)
        texts << part<QLabel>(row, label)->text();
    QCOMPARE(texts.join(u'|'), u"a||today|Baked|12|3|10s/25|2.5"_s);
    QVERIFY(part<OvixSvgButton>(row, "statusLabel")->hasFilenames());
}

void VelmoScenesTableTest::findsTheFirstMatchWhateverTheCase_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("askedFor");
    QTest::addColumn<int>("row");
    QTest::newRow("other case") << QStringList{u"a"_s, u"Bar"_s} << u"bAR"_s << 1;
    QTest::newRow("first of equals") << QStringList{u"a"_s, u"B"_s, u"b"_s, u"B"_s} << u"b"_s << 1;
    QTest::newRow("sharp s") << QStringList{u"strasse"_s, u"STRAẞE"_s} << u"straße"_s << 1;
    QTest::newRow("no name") << QStringList{u"a"_s, QString()} << u""_s << 1;
    QTest::newRow("part of a name") << QStringList{u"abc"_s} << u"ab"_s << -1;
    QTest::newRow("empty table") << QStringList() << u""_s << -1;
}

void VelmoScenesTableTest::findsTheFirstMatchWhateverTheCase()
{
    QFETCH(QStringList, names);
    QFETCH(QString, askedFor);
    QFETCH(int, row);
    VelmoScenesTable table;
    add(table, names);
    QCOMPARE(table.hasScene(askedFor), row >= 0);
    table.setSceneEnabled(askedFor, true);
    QCOMPARE(table.isSceneEnabled(askedFor), row >= 0);
    table.setSelectedScene(askedFor);
    if (row >= 0) {
        QCOMPARE(table.getSelectedRow(), row);
        QCOMPARE(table.getEnabledScenes(), QStringList{names[row]});
        table.renameScene(askedFor, u"renamed"_s);
        names[row] = u"renamed"_s;
    }
    QCOMPARE(namesOf(table), names);
}

void VelmoScenesTableTest::followsRenames()
{
    VelmoScenesTable table;
    add(table, {u"a"_s, u"b"_s, u"c"_s});
    table.renameScene(u"A"_s, u"C"_s);
    QVERIFY(!table.hasScene(u"a"_s));
    table.setSceneEnabled(u"c"_s, true);
    QVERIFY(rowAt(table, 0)->isAddEnabled() && !rowAt(table, 2)->isAddEnabled());
    table.renameScene(u"c"_s, u"d"_s);
    QVERIFY(!table.isSceneEnabled(u"c"_s) && table.isSceneEnabled(u"d"_s));

    // A row that has been found in the list can be renamed as well.
    rowAt(table, 1)->setName(u"D"_s);
    rowAt(table, 0)->setName(u"e"_s);
    QVERIFY(!table.hasScene(u"b"_s));
    table.setSelectedScene(u"d"_s);
    QCOMPARE(table.getSelectedScene(), u"D"_s);

    VelmoSceneItem *removed = rowAt(table, 0);
    table.clearScenes();
    QVERIFY(!table.hasScene(u"d"_s));
    add(table, u"f"_s);
    removed->setName(u"g"_s); // it lives until the next turn
    QVERIFY(table.hasScene(u"f"_s) && !table.hasScene(u"g"_s));
    table.renameScene(u"f"_s, u"D"_s);
    QVERIFY(table.hasScene(u"d"_s));
}

void VelmoScenesTableTest::ignoresUnknownNames()
{
    VelmoScenesTable table;
    for (const QStringList &names : {QStringList(), QStringList{u"b"_s}}) {
        add(table, names);
        for (const QString &name : {QString(), u"nobody"_s, QString(1'000'000, u'x')}) {
            table.renameScene(name, u"a"_s);
            table.setSceneEnabled(name, true);
            QVERIFY(!table.hasScene(name) && !table.isSceneEnabled(name));
        }
        table.finishEditing();
        QVERIFY(table.getEnabledScenes().isEmpty());
        QCOMPARE(namesOf(table), names);
    }
}

void VelmoScenesTableTest::selects_data()
{
    QTest::addColumn<QString>("scenes");
    QTest::addColumn<QVariant>("asked"); // for a row, for a scene or for the default selection
    QTest::addColumn<int>("row");
    QTest::newRow("first") << u"a b c"_s << QVariant(0) << 0;
    QTest::newRow("beyond the end") << u"a b c"_s << QVariant(99) << 2;
    QTest::newRow("before the start") << u"a b c"_s << QVariant(-1) << -1;
    QTest::newRow("far before") << u"a b c"_s << QVariant(std::numeric_limits<int>::min()) << -1;
    QTest::newRow("no rows") << u""_s << QVariant(0) << -1;
    QTest::newRow("not compatible") << u"a !b c"_s << QVariant(1) << -1;
    QTest::newRow("scene") << u"a b c"_s << QVariant(u"C"_s) << 2;
    QTest::newRow("not compatible scene") << u"a !b +c"_s << QVariant(u"b"_s) << -1;
    QTest::newRow("unknown scene") << u"a b +c +d"_s << QVariant(u"x"_s) << 2;
    QTest::newRow("unknown scene, none chosen") << u"a b c"_s << QVariant(u"x"_s) << 0;
    QTest::newRow("unknown scene, no rows") << u""_s << QVariant(u"x"_s) << -1;
    QTest::newRow("default") << u"a b c"_s << QVariant() << 0;
    QTest::newRow("default, chosen") << u"a +b +c"_s << QVariant() << 1;
    QTest::newRow("default, no rows") << u""_s << QVariant() << -1;
    QTest::newRow("default, first not compatible") << u"!a b c"_s << QVariant() << -1;
}

void VelmoScenesTableTest::selects()
{
    QFETCH(QString, scenes);
    QFETCH(QVariant, asked);
    QFETCH(int, row);
    VelmoScenesTable table;
    table.clearScenes();
    add(table, scenes.split(u' ', Qt::SkipEmptyParts));
    for (const int before : {-1, 0, 1}) {
        table.setSelectedRow(before);
        const int rowBefore = table.getSelectedRow();
        QSignalSpy changed(&table, &VelmoScenesTable::selectionChanged);
        if (asked.typeId() == QMetaType::Int)
            table.setSelectedRow(asked.toInt());
        else if (asked.typeId() == QMetaType::QString)
            table.setSelectedScene(asked.toString());
        else
            table.setDefaultSelection();
        QCOMPARE(table.getSelectedRow(), row);
        QCOMPARE(flawOf(table), QString());
        QVERIFY(row == rowBefore || !changed.isEmpty());

        table.clearSelection();
        QCOMPARE(table.getSelectedRow(), -1);
        QCOMPARE(flawOf(table), QString());
    }
    table.setSelectedRow(0);
    QSignalSpy changed(&table, &VelmoScenesTable::selectionChanged);
    table.clearScenes();
    QCOMPARE(changed.count(), 0);
    QCOMPARE(table.getSelectedRow(), -1);
}

void VelmoScenesTableTest::choosesWithoutASignal()
{
    VelmoScenesTable table;
    add(table, {u"a"_s, u"!b"_s, u"c"_s});
    QSignalSpy changed(rowAt(table, 2), &VelmoSceneItem::addChanged);
    table.setSceneEnabled(u"C"_s, true);
    table.setSceneEnabled(u"B"_s, true);
    QCOMPARE(table.getEnabledScenes(), QStringList({u"b"_s, u"c"_s}));
    table.setSceneEnabled(u"c"_s, true);
    table.setSceneEnabled(u"b"_s, false);
    QCOMPARE(table.getEnabledScenes(), QStringList{u"c"_s});
    QVERIFY(!table.isSceneEnabled(u"B"_s));
    QCOMPARE(changed.count(), 0);
    QVERIFY(part(rowAt(table, 2), "backgroundWidget")->styleSheet().contains(u"border:1px solid"_s));
}

void VelmoScenesTableTest::scrollsTheSelectionToTheMiddle()
{
    ShownTable shown;
    fill(*shown.table, 60);
    const QListWidget *list = listOf(*shown.table);
    const auto isCentred = [&](int row) {
        const int middle = list->visualItemRect(list->item(row)).center().y();
        return qAbs(middle - list->viewport()->rect().center().y()) <= 25;
    };
    // At once, before the rows have found their places, and later.
    shown.table->setSelectedRow(30);
    QVERIFY(isCentred(30));
    QVERIFY(Events::untilIdle());
    QVERIFY(isCentred(30));
    shown.table->setSelectedScene(u"SCENE 40"_s);
    QVERIFY(isCentred(40));
    shown.table->setSceneEnabled(u"scene 20"_s, true);
    shown.table->setDefaultSelection();
    QVERIFY(isCentred(20));

    // A list that is hidden gets its size when it is shown.
    shown.window.hide();
    shown.table->setSelectedRow(40);
    shown.table->resize(760, 200);
    shown.window.show();
    QTRY_VERIFY(isCentred(40));
}

void VelmoScenesTableTest::switchesModes()
{
    ShownTable shown({u"a"_s});
    for (const bool on : {false, true, true, false}) {
        shown.table->setMultiSelectionEnabled(on);
        shown.table->setEditingEnabled(on);
        add(*shown.table, u"b"_s);
        QCOMPARE(shown.table->isMultiSelectionEnabled(), on);
        QCOMPARE(headerOf(*shown.table)->layout()->itemAt(0)->widget()->isVisible(), on);
        QCOMPARE(flawOf(*shown.table, on), QString());
        for (const int row : {0, shown.table->getSceneCount() - 1}) {
            QCOMPARE(shown.row(row)->isAddVisible(), on);
            QCOMPARE(part(shown.row(row), "addButton")->isVisible(), on);
            QVERIFY(QMetaObject::invokeMethod(shown.row(row), "renameTriggered"));
            QCOMPARE(part(shown.row(row), "nameEdit")->isVisible(), on);
            shown.table->finishEditing();
            QVERIFY(!part(shown.row(row), "nameEdit")->isVisible());
        }
    }
}

void VelmoScenesTableTest::keepsTheAddButtonLast()
{
    VelmoScenesTable table;
    QCOMPARE(flawOf(table, false), QString()); // it comes with the first change
    const auto check = [&](bool there) {
        QCOMPARE(flawOf(table, there), QString());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const auto buttons =
            listOf(table)->viewport()->findChildren<OvixSvgButton *>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(buttons.size(), int(there));
        if (!there)
            return;
        const QListWidgetItem *item = listOf(table)->item(listOf(table)->count() - 1);
        QCOMPARE(buttons[0]->firstFilename(), u":/Windows/AddButton"_s);
        QCOMPARE(buttons[0]->height(), 16);
        QCOMPARE(item->sizeHint().height(), 16);
        QVERIFY(!item->flags().testFlag(Qt::ItemIsSelectable));
    };
    for (const bool editing : {true, false, true, true}) {
        table.setEditingEnabled(editing);
        check(editing);
        add(table, {u"a"_s, u"b"_s});
        check(editing);
        table.clearScenes();
        check(editing);
        add(table, u"c"_s);
    }
}

void VelmoScenesTableTest::asksForAScene()
{
    ShownTable shown({u"a"_s});
    shown.table->setSelectedRow(0);
    QSignalSpy pressed(shown.table, &VelmoScenesTable::newScenePressed);
    const QImage atRest = Picture::of(newSceneButton(*shown.table));
    Gestures::hover(newSceneButton(*shown.table));
    QVERIFY(Picture::of(newSceneButton(*shown.table)) != atRest);
    Gestures::click(newSceneButton(*shown.table));
    QCOMPARE(pressed.count(), 1);
    Gestures::click(newSceneButton(*shown.table), Qt::RightButton);
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(shown.table->getSelectedRow(), 0);

    QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(newSceneButton(*shown.table));
    QCOMPARE(spoken->role(), QAccessible::Button);
    QCOMPARE(spoken->text(QAccessible::Name), u"New scene"_s);
    spoken->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(pressed.count(), 2);
}

void VelmoScenesTableTest::selectsARowClickedAnywhere()
{
    ShownTable shown({u"a"_s, u"b"_s});
    for (const char *label : rowLabels) {
        shown.table->setSelectedRow(0);
        Gestures::click(part(shown.row(1), label));
        QVERIFY2(shown.table->getSelectedRow() == 1, label);
    }
    shown.table->setSelectedRow(0);
    QAccessible::queryAccessibleInterface(shown.row(1))
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(shown.table->getSelectedScene(), u"b"_s);
}

void VelmoScenesTableTest::leavesIncompatibleRowsAlone()
{
    ShownTable shown({u"a"_s, u"!b"_s});
    for (const char *label : {"addButton", "nameLabel", "versionLabel"}) {
        Gestures::doubleClick(part(shown.row(1), label));
        QVERIFY2(!shown.row(1)->isSelected() && !shown.row(1)->isAddEnabled(), label);
        QVERIFY2(shown.table->getSelectedRow() < 0, label);
    }
    QVERIFY(part(shown.row(1), "nameEdit")->isHidden());
    QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(shown.row(1));
    QVERIFY(!spoken->state().selectable);
    QCOMPARE(spoken->text(QAccessible::Name), u"b"_s);
}

void VelmoScenesTableTest::givesRowsTheWidthsOfTheHeader()
{
    ShownTable shown({u"a"_s});
    const auto labels = {"statusLabel", "lastModifiedLabel",  "bakeLabel",
                         "actorsLabel", "timeFramerateLabel", "versionLabel"};
    int width = 40;
    for (const char *label : labels)
        part(headerOf(*shown.table), label)->setFixedWidth(width += 7);
    shown.table->resize(950, 300);
    QVERIFY(Events::untilIdle());
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

void VelmoScenesTableTest::restylesOnlyRowsThatChange()
{
    constexpr int count = 100;
    VelmoScenesTable table;
    fill(table, count);
    std::vector<std::unique_ptr<Events::Count>> restyles;
    for (int row = 0; row < count; ++row)
        restyles.push_back(
            std::make_unique<Events::Count>(part(rowAt(table, row), "backgroundWidget"), QEvent::StyleChange));
    const auto restyled = [&] {
        QString rows;
        for (int row = 0; row < count; ++row) {
            if (restyles[row]->taken() > 0)
                rows += QString::number(row) + u' ';
        }
        return rows;
    };
    table.setSelectedRow(5);
    QCOMPARE(restyled(), u"5 "_s);
    table.setSelectedScene(u"scene 70"_s);
    QCOMPARE(restyled(), u"5 70 "_s);
    table.setSceneEnabled(u"scene 70"_s, true);
    QCOMPARE(restyled(), u"70 "_s);
    table.clearSelection(); // a chosen row looks selected anyway
    table.setSceneEnabled(u"scene 6"_s, false);
    QCOMPARE(restyled(), QString());
}

VELMO_TEST_MAIN(VelmoScenesTableTest)
#include "VelmoScenesTableTest.moc"
