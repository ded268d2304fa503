#include "SceneRows.h"
#include "support/TestCase.h"

#include <QApplication>
#include <QRandomGenerator>

#include <algorithm>
#include <functional>
#include <limits>

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
    return widget->updatesEnabled() && std::all_of(parts.cbegin(), parts.cend(), std::mem_fn(&QWidget::updatesEnabled));
}

} // namespace

/// A scene list that is changed at any time: from inside its own signals, over and over, and while it is being filled.
class SceneListChangesTest : public TestCase
{
    Q_OBJECT

private slots:
    void mayBeChangedFromItsSignals_data()
    {
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<QByteArray>("change");
        for (const char *signal : {"newScenePressed", "renameRequested", "addChanged", "selectionChanged, click",
                                   "selectionChanged, call"}) {
            for (const char *change :
                 {"addScene", "refill", "editing off", "editing on", "setSelectedRow", "finishEditing"})
                QTest::addRow("%s, %s", signal, change) << QByteArray(signal) << QByteArray(change);
        }
    }
    void mayBeChangedFromItsSignals()
    {
        QFETCH(QByteArray, signal);
        QFETCH(QByteArray, change);
        ShownTable shown({u"a"_s, u"b"_s, u"c"_s});
        VelmoScenesTable *table = shown.table;
        table->setSelectedRow(1);
        int calls = 0;
        int scenes = 3;
        const auto react = [&] {
            if (++calls > 1)
                return;
            if (change == "refill")
                table->clearScenes();
            if (change == "addScene" || change == "refill")
                fill(*table, 4);
            scenes = change == "addScene" ? 7 : change == "refill" ? 4 : 3;
            if (change.startsWith("editing"))
                table->setEditingEnabled(change == "editing on");
            else if (change == "setSelectedRow")
                table->setSelectedRow(2);
            else if (change == "finishEditing")
                table->finishEditing();
        };
        connect(table, &VelmoScenesTable::newScenePressed, this, react);
        connect(table, &VelmoScenesTable::renameRequested, this, react);
        connect(shown.row(1), &VelmoSceneItem::addChanged, this, react);
        if (signal.startsWith("selectionChanged"))
            connect(table, &VelmoScenesTable::selectionChanged, this, react);
        if (signal == "newScenePressed") {
            Gestures::click(newSceneButton(*table));
        } else if (signal == "renameRequested") {
            QLineEdit *edit = startRenaming(shown.row(1));
            QTest::keyClicks(edit, u"x"_s);
            QTest::keyClick(edit, Qt::Key_Return);
        } else if (signal == "addChanged") {
            Gestures::click(part(shown.row(1), "addButton"));
        } else if (signal.endsWith("click")) {
            Gestures::click(part(shown.row(0), "nameLabel"));
        } else {
            table->setSelectedRow(0);
        }
        QTRY_VERIFY(calls > 0);
        QVERIFY(Events::untilIdle());
        QCOMPARE(table->getSceneCount(), scenes);
        QCOMPARE(flawOf(*table, change != "editing off"), QString());
    }

    /// After a click on it the add button's row is the list's current one, and the list selects another when it goes.
    void tellsOfTheSelectionWhenRowsAreWhole()
    {
        for (const QByteArray change : {"addScene", "clearScenes", "editing off", "editing on"}) {
            ShownTable shown({u"a"_s, u"b"_s});
            listOf(*shown.table)->setCurrentRow(2);
            const bool editing = change != "editing off";
            QStringList flaws;
            connect(shown.table, &VelmoScenesTable::selectionChanged, this, [&] {
                flaws << flawOf(*shown.table, editing);
                if (!shown.table->hasScene(u"from the signal"_s))
                    add(*shown.table, u"from the signal"_s);
                flaws << flawOf(*shown.table, editing);
            });
            if (change == "addScene")
                add(*shown.table, u"c"_s);
            else if (change == "clearScenes")
                shown.table->clearScenes();
            else
                shown.table->setEditingEnabled(editing);
            flaws << flawOf(*shown.table, editing);
            flaws.removeAll(QString());
            QVERIFY2(flaws.isEmpty(), change + qPrintable(flaws.join(u' ')));
        }
    }

    void agreesWithAModel_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 6; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }
    void agreesWithAModel()
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
        int before = -1;
        int told = 0;
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
            ++told;
            if (const QString flaw = flawOf(table, editing); !flaw.isEmpty())
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
                const int row = random.bounded(8) ? random.bounded(-2, 20) : std::numeric_limits<int>::min();
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
                before = selected = -1; // it goes in silence
            },
        };
        for (int step = 0; step < 300; ++step) {
            const QString name = anyName();
            const int action = random.bounded(int(std::size(actions)));
            before = selected;
            told = 0;
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
                && table.hasScene(askedFor) == (asked >= 0) && (selected == before || told > 0)
                && table.isSceneEnabled(askedFor) == (asked >= 0 && scenes[asked].chosen);
            QVERIFY2(agrees && done.size() == step + 1, qPrintable(done.join(u", "_s)));
            if (step % 20 == 0)
                QVERIFY(Events::untilIdle());
        }
    }

    /// A row that waits for its place must not come under the pointer, nor ask for a repaint of its own.
    void placesAndPaintsRowsAtTheNextTurn()
    {
        ShownTable shown({u"a"_s});
        Gestures::hover(part(shown.row(0), "nameLabel"));
        Events::Count left(shown.row(0), QEvent::Leave);
        for (int i = 0; i < 3; ++i) {
            fill(*shown.table, 3);
            QVERIFY(!hasPlacedRows(shown));
            QVERIFY(shown.row(0)->isAncestorOf(shown.viewport()->childAt(5, 5)));
            QVERIFY(!shown.viewport()->updatesEnabled());
            Events::Count paints(shown.row(2), QEvent::Paint);
            QVERIFY(Events::untilIdle());
            QVERIFY(hasPlacedRows(shown));
            QVERIFY(paints.taken() > 0);
            QVERIFY(allPaint(shown.viewport()));
            shown.row(2)->setAddEnabled(i % 2 == 0); // a later change of one row shows
            QVERIFY(Events::untilIdle());
            QVERIFY(paints.taken() > 0);
        }
        QCOMPARE(left.taken(), 0);
    }

    void keepsUpdatesDisabled_data()
    {
        QTest::addColumn<QByteArray>("where");
        for (const char *where : {"window", "table", "list", "viewport"})
            QTest::newRow(where) << QByteArray(where);
    }
    void keepsUpdatesDisabled()
    {
        QFETCH(QByteArray, where);
        for (const bool inMidFill : {false, true}) {
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

            // Enabling them again is enough, from inside a fill as well, and leaves a row alone that is held by itself.
            if (inMidFill)
                fill(*shown.table, 5);
            disabled->setUpdatesEnabled(true);
            QVERIFY(Events::untilIdle());
            QVERIFY(paints.taken() > 0);
            QVERIFY(allPaint(&shown.window));
            fill(*shown.table, 1);
            shown.row(shown.table->getSceneCount() - 1)->setUpdatesEnabled(false);
            QVERIFY(Events::untilIdle());
            QVERIFY(!shown.row(shown.table->getSceneCount() - 1)->updatesEnabled());
        }
    }

    void paintsWhateverHappensInMidFill_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("middle");
        QTest::addColumn<QByteArray>("after");
        const auto row = [](const char *before, const char *middle, const char *after) {
            QTest::addRow("%s, fill, %s, fill, %s", before, middle, after)
                << QByteArray(before) << QByteArray(middle) << QByteArray(after);
        };
        row("", "hide table", "show table");
        row("", "hide window show window", "");
        row("hide table", "show table", "");
        row("", "hide window", "show window");
        row("hide window", "show window", "");
        row("", "hide table turn", "show table");
        row("hide table", "turn", "show table");
        row("", "turn clear", "");
        row("", "move show table", "");
    }
    void paintsWhateverHappensInMidFill()
    {
        ShownTable shown;
        const auto change = [&](const QByteArray &changes) {
            QWidget *widget = changes.contains("table") ? shown.table.data() : &shown.window;
            if (changes.contains("hide"))
                widget->hide();
            if (changes.contains("turn"))
                QVERIFY(Events::untilIdle());
            if (changes.contains("clear"))
                shown.table->clearScenes();
            if (changes.contains("move")) {
                shown.table->setParent(nullptr);
                shown.table->setParent(&shown.window);
            }
            if (changes.contains("show"))
                widget->show();
        };
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, middle);
        QFETCH(QByteArray, after);
        change(before);
        fill(*shown.table, 4);
        change(middle);
        fill(*shown.table, 4);
        Events::Count paints(shown.row(shown.table->getSceneCount() - 1), QEvent::Paint);
        change(after);
        QTRY_VERIFY(hasPlacedRows(shown));
        QVERIFY(Events::untilIdle());
        QVERIFY(paints.taken() > 0);
        QVERIFY(allPaint(shown.viewport()));
        fill(*shown.table, 4); // and may go in mid-fill
        delete shown.table;
        QVERIFY(Events::untilIdle());
    }
};

VELMO_TEST_MAIN(SceneListChangesTest)
#include "SceneListChangesTest.moc"
