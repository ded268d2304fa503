#include "SceneRows.h"
#include "support/TestCase.h"

#include <QRandomGenerator>

#include <algorithm>
#include <functional>

using namespace SceneRows;

/// A scene list that is changed at any time: from inside its own signals, and over and over.
class SceneListChangesTest : public TestCase
{
    Q_OBJECT

private slots:
    void mayBeChangedFromItsSignals_data();
    void mayBeChangedFromItsSignals();
    void tellsOfTheSelectionWhenRowsAreWhole_data();
    void tellsOfTheSelectionWhenRowsAreWhole();
    void agreesWithAModel_data();
    void agreesWithAModel();
};

void SceneListChangesTest::mayBeChangedFromItsSignals_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QByteArray>("change");
    for (const char *signal : {"newScenePressed", "renameRequested", "addChanged", "selectionChanged, click",
                               "selectionChanged, call", "selectionChanged, Down"}) {
        for (const char *change : {"addScene", "clearScenes", "refill", "editing off", "editing on", "renameScene",
                                   "setSelectedRow", "finishEditing", "delete"})
            QTest::addRow("%s, %s", signal, change) << QByteArray(signal) << QByteArray(change);
    }
}

void SceneListChangesTest::mayBeChangedFromItsSignals()
{
    QFETCH(QByteArray, signal);
    QFETCH(QByteArray, change);
    ShownTable shown({u"a"_s, u"b"_s, u"c"_s});
    QPointer<VelmoScenesTable> &table = shown.table;
    table->setSelectedRow(1);
    int calls = 0;
    int scenes = 3;
    const auto react = [&] {
        if (++calls > 1)
            return;
        if (change == "addScene") {
            add(*table, u"d"_s);
            ++scenes;
        } else if (change == "clearScenes" || change == "refill") {
            table->clearScenes();
            scenes = change == "refill" ? 5 : 0;
            fill(*table, scenes);
        } else if (change.startsWith("editing")) {
            table->setEditingEnabled(change == "editing on");
        } else if (change == "renameScene") {
            table->renameScene(u"b"_s, u"d"_s);
        } else if (change == "setSelectedRow") {
            table->setSelectedRow(2);
        } else if (change == "finishEditing") {
            table->finishEditing();
        } else if (signal.startsWith("selectionChanged")) {
            table->deleteLater(); // the list is at work
        } else {
            delete table;
        }
    };
    if (signal == "newScenePressed") {
        connect(table, &VelmoScenesTable::newScenePressed, this, react);
        Gestures::click(newSceneButton(*table));
    } else if (signal == "renameRequested") {
        connect(table, &VelmoScenesTable::renameRequested, this, react);
        QLineEdit *edit = shown.startRenaming(1);
        QTest::keyClicks(edit, u"x"_s);
        QTest::keyClick(edit, Qt::Key_Return);
    } else if (signal == "addChanged") {
        connect(shown.row(1), &VelmoSceneItem::addChanged, this, react);
        Gestures::click(part(shown.row(1), "addButton"));
    } else {
        connect(table, &VelmoScenesTable::selectionChanged, this, react);
        if (signal.endsWith("click"))
            Gestures::click(part(shown.row(0), "nameLabel"));
        else if (signal.endsWith("call"))
            table->setSelectedRow(0);
        else
            QTest::keyClick(listOf(*table), Qt::Key_Down);
    }
    QTRY_VERIFY(calls > 0);
    QVERIFY(Events::untilIdle());
    QTRY_COMPARE(table.isNull(), change == "delete");
    if (table) {
        QCOMPARE(table->getSceneCount(), scenes);
        QCOMPARE(flawOf(*table, change != "editing off"), QString());
    }
}

void SceneListChangesTest::tellsOfTheSelectionWhenRowsAreWhole_data()
{
    QTest::addColumn<QByteArray>("change");
    for (const char *change : {"addScene", "clearScenes", "editing off", "editing on"})
        QTest::newRow(change) << QByteArray(change);
}

/// After a click on it the add button's row is the list's current one, and the list selects another when it goes.
void SceneListChangesTest::tellsOfTheSelectionWhenRowsAreWhole()
{
    QFETCH(QByteArray, change);
    for (const QStringList &names : {QStringList(), QStringList{u"a"_s, u"b"_s}}) {
        ShownTable shown(names);
        listOf(*shown.table)->setCurrentRow(int(names.size()));
        bool editing = true;
        QStringList flaws;
        connect(shown.table, &VelmoScenesTable::selectionChanged, this, [&] {
            flaws << flawOf(*shown.table, editing);
            if (shown.table->hasScene(u"from the signal"_s))
                return;
            add(*shown.table, u"from the signal"_s);
            flaws << flawOf(*shown.table, editing);
        });
        if (change == "addScene") {
            add(*shown.table, u"c"_s);
        } else if (change == "clearScenes") {
            shown.table->clearScenes();
        } else {
            editing = change == "editing on";
            shown.table->setEditingEnabled(editing);
        }
        flaws << flawOf(*shown.table, editing);
        flaws.removeAll(QString());
        QCOMPARE(flaws, QStringList());
    }
}

void SceneListChangesTest::agreesWithAModel_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 6; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void SceneListChangesTest::agreesWithAModel()
{
    struct Scene
    {
        QString name;
        bool compatible;
        bool chosen = false;
    };
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    VelmoScenesTable table;
    table.clearScenes();
    QList<Scene> scenes;
    int selected = -1;
    bool editing = true;
    QStringList done;

    const auto anyName = [&] { return QString(1, QChar(u'a' + random.bounded(6) - 32 * random.bounded(2))); };
    const auto indexOf = [&](const QString &name) {
        const auto same = [&](const Scene &scene) { return scene.name.compare(name, Qt::CaseInsensitive) == 0; };
        const auto found = std::find_if(scenes.cbegin(), scenes.cend(), same);
        return found == scenes.cend() ? -1 : int(found - scenes.cbegin());
    };
    const auto select = [&](int row) { selected = row >= 0 && scenes[row].compatible ? row : -1; };
    const auto selectDefault = [&] {
        const auto chosen = std::find_if(scenes.cbegin(), scenes.cend(), std::mem_fn(&Scene::chosen));
        select(scenes.isEmpty() ? -1 : chosen == scenes.cend() ? 0 : int(chosen - scenes.cbegin()));
    };
    connect(&table, &VelmoScenesTable::selectionChanged, this, [&] {
        const QString flaw = flawOf(table, editing);
        if (!flaw.isEmpty())
            done << u"signal: "_s + flaw;
    });

    const std::function<void(const QString &, int)> actions[] = {
        [&](const QString &name, int) {
            const bool compatible = random.bounded(4) > 0;
            add(table, name, compatible);
            scenes.append({name, compatible});
        },
        [&](const QString &name, int found) {
            const QString other = anyName();
            table.renameScene(name, other);
            if (found >= 0)
                scenes[found].name = other;
        },
        [&](const QString &name, int) {
            if (scenes.isEmpty())
                return;
            scenes.last().name = name;
            rowAt(table, int(scenes.size()) - 1)->setName(name);
        },
        [&](const QString &name, int found) {
            const bool chosen = random.bounded(2) > 0;
            table.setSceneEnabled(name, chosen);
            if (found >= 0)
                scenes[found].chosen = chosen;
        },
        [&](const QString &name, int found) {
            table.setSelectedScene(name);
            found < 0 ? selectDefault() : select(found);
        },
        [&](const QString &, int) {
            const int row = random.bounded(-2, 20);
            table.setSelectedRow(row);
            select(std::min(row, int(scenes.size()) - 1));
        },
        [&](const QString &, int) {
            table.setDefaultSelection();
            selectDefault();
        },
        [&](const QString &, int) {
            table.clearSelection();
            selected = -1;
        },
        [&](const QString &, int) { table.setEditingEnabled(editing = !editing); },
        [&](const QString &, int) {
            table.setMultiSelectionEnabled(!table.isMultiSelectionEnabled());
            table.finishEditing();
        },
        [&](const QString &, int) {
            if (random.bounded(4) > 0)
                return;
            table.clearScenes();
            scenes.clear();
            selected = -1;
        },
    };
    for (int step = 0; step < 300; ++step) {
        const QString name = anyName();
        const int action = random.bounded(int(std::size(actions)));
        actions[action](name, indexOf(name));
        done << u"%1 %2"_s.arg(action).arg(name);

        QStringList names;
        QStringList chosen;
        for (const Scene &scene : std::as_const(scenes)) {
            names << scene.name;
            if (scene.chosen)
                chosen << scene.name;
        }
        const QString askedFor = anyName();
        const int asked = indexOf(askedFor);
        const bool agrees = flawOf(table, editing).isEmpty() && namesOf(table) == names
            && table.getEnabledScenes() == chosen && table.getSelectedRow() == selected
            && table.hasScene(askedFor) == (asked >= 0)
            && table.isSceneEnabled(askedFor) == (asked >= 0 && scenes[asked].chosen);
        QVERIFY2(agrees && done.size() == step + 1, qPrintable(done.join(u", "_s)));
        if (step % 20 == 0)
            QVERIFY(Events::untilIdle());
    }
}

VELMO_TEST_MAIN(SceneListChangesTest)
#include "SceneListChangesTest.moc"
