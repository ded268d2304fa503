#include "SceneRows.h"
#include "support/TestCase.h"

#include <QSignalSpy>

using namespace SceneRows;

/// Renaming a scene in its row, from the first click to the owner's answer.
class SceneRenamingTest : public TestCase
{
    Q_OBJECT

private slots:
    void asksForTheNewName_data();
    void asksForTheNewName();
    void startsWithTheStoredName();
    void asksOnceForEachEdit();
    void keepsEndlessNames();
    void asksThroughTheTable();
    void leavesTheListAlone();
    void dropsPendingRenames_data();
    void dropsPendingRenames();
    void mayEndARow_data();
    void mayEndARow();
};

void SceneRenamingTest::asksForTheNewName_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QByteArray>("end");
    QTest::addColumn<bool>("asks");
    QTest::newRow("Return") << u"Market"_s << QByteArray("Return") << true;
    QTest::newRow("Return, unchanged") << u"Plaza"_s << QByteArray("Return") << false;
    QTest::newRow("only the case") << u"PLAZA"_s << QByteArray("Return") << true;
    QTest::newRow("blank at the end") << u"Plaza "_s << QByteArray("Return") << true;
    QTest::newRow("nothing left") << QString() << QByteArray("Return") << true;
    QTest::newRow("focus lost") << u"Market"_s << QByteArray("focus") << true;
    QTest::newRow("focus lost, unchanged") << u"Plaza"_s << QByteArray("focus") << false;
    QTest::newRow("focus lost, untouched") << QString() << QByteArray("untouched, focus") << false;
    QTest::newRow("Escape") << u"Market"_s << QByteArray("Escape") << false;
    QTest::newRow("finishEditing") << u"Market"_s << QByteArray("finish") << true;
}

void SceneRenamingTest::asksForTheNewName()
{
    QFETCH(QString, typed);
    QFETCH(QByteArray, end);
    QFETCH(bool, asks);
    ShownRow shown;
    QSignalSpy renamed(shown.row, &VelmoSceneItem::renameRequested);
    QLineEdit *edit = shown.startRenaming();
    QVERIFY(edit->isVisible());
    if (!end.startsWith("untouched")) {
        QTest::keyClick(edit, Qt::Key_Backspace);
        QTest::keyClicks(edit, typed);
    }
    if (end == "Return")
        QTest::keyClick(edit, Qt::Key_Return);
    else if (end.endsWith("focus"))
        shown.other->setFocus();
    else if (end == "Escape")
        QTest::keyClick(edit, Qt::Key_Escape);
    else
        shown.row->finishEditing();

    QTRY_VERIFY(edit->isHidden());
    QVERIFY(Events::untilIdle());
    QVERIFY(!edit->hasFocus() && shown.nameLabel()->isVisible());
    QCOMPARE(renamed.count(), int(asks));
    if (asks)
        QCOMPARE(renamed.takeFirst(), QVariantList({u"Plaza"_s, typed}));

    // The owner has not answered: nothing has changed.
    QCOMPARE(shown.row->getName(), u"Plaza"_s);
    QCOMPARE(shown.nameLabel()->text(), u"Plaza"_s);
    QCOMPARE(shown.startRenaming()->text(), u"Plaza"_s);
}

void SceneRenamingTest::startsWithTheStoredName()
{
    ShownRow shown;
    const QString name = u"A scene with a name that goes on for longer than its column "_s.repeated(5);
    shown.row->setName(name);
    const QLineEdit *edit = shown.startRenaming();
    QCOMPARE(edit->selectedText(), name);
    QVERIFY(edit->hasFocus());
    shown.row->finishEditing();

    for (const bool enabled : {false, true}) {
        shown.row->setEditingEnabled(enabled);
        QVERIFY(QMetaObject::invokeMethod(shown.row, "renameTriggered"));
        QCOMPARE(edit->isVisible(), enabled);
    }
}

void SceneRenamingTest::asksOnceForEachEdit()
{
    ShownRow shown;
    QSignalSpy renamed(shown.row, &VelmoSceneItem::renameRequested);
    connect(shown.row, &VelmoSceneItem::renameRequested, shown.row, [&](const QString &, const QString &wanted) {
        QVERIFY(shown.nameEdit()->isHidden());
        shown.row->setName(wanted);
    });
    for (int i = 1; i <= 3; ++i) {
        QLineEdit *edit = shown.startRenaming();
        QTest::keyClicks(edit, u"Market %1"_s.arg(i));
        QTest::keyClick(edit, Qt::Key_Return);
        QVERIFY(edit->isVisible()); // the end waits for its turn
        QVERIFY(Events::untilIdle());
        QCOMPARE(renamed.count(), i);
    }
    shown.row->finishEditing();
    QCOMPARE(renamed.count(), 3);
    QCOMPARE(shown.nameLabel()->text(), u"Market 3"_s);
}

/// Longer than a line edit takes by itself.
void SceneRenamingTest::keepsEndlessNames()
{
    ShownRow shown;
    QSignalSpy renamed(shown.row, &VelmoSceneItem::renameRequested);
    shown.row->setName(QString(40'000, u'n'));
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        QTest::keyClick(shown.startRenaming(), key);
        QVERIFY(Events::untilIdle());
        QVERIFY(shown.nameEdit()->isHidden());
    }
    QCOMPARE(renamed.count(), 0);
}

void SceneRenamingTest::asksThroughTheTable()
{
    ShownTable shown({u"a"_s, u"b"_s});
    QSignalSpy renamed(shown.table, &VelmoScenesTable::renameRequested);
    connect(shown.table, &VelmoScenesTable::renameRequested, shown.table, &VelmoScenesTable::renameScene);
    // The two clicks select the row before they start the renaming.
    for (const QString &name : {u"c"_s, u"C"_s}) {
        const QString before = shown.row(1)->getName();
        QLineEdit *edit = shown.startRenaming(1);
        QCOMPARE(shown.table->getSelectedRow(), 1);
        QTest::keyClicks(edit, name);
        QTest::keyClick(edit, Qt::Key_Return);
        QTRY_COMPARE(renamed.count(), 1);
        QCOMPARE(renamed.takeFirst(), QVariantList({before, name}));
        QCOMPARE(namesOf(*shown.table), QStringList({u"a"_s, name}));
        QCOMPARE(shown.table->getSelectedScene(), name);
    }
}

/// A reader may add scenes while the user types, and keys that a line does not use stay away from the list.
void SceneRenamingTest::leavesTheListAlone()
{
    ShownTable shown({u"a"_s, u"b"_s});
    QLineEdit *edit = shown.startRenaming(0);
    QTest::keyClicks(edit, u"x"_s);
    for (int i = 0; i < 3; ++i) {
        add(*shown.table, u"c"_s);
        QVERIFY(Events::untilIdle());
    }
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Up, Qt::Key_PageUp})
        QTest::keyClick(edit, key);
    QVERIFY(edit->isVisible() && edit->hasFocus());
    QCOMPARE(edit->text(), u"x"_s);
    QCOMPARE(shown.table->getSelectedRow(), 0);
}

void SceneRenamingTest::dropsPendingRenames_data()
{
    QTest::addColumn<bool>("ended");
    QTest::addColumn<bool>("cleared");
    QTest::newRow("while the edit is open") << false << false;
    QTest::newRow("while its end waits for its turn") << true << false;
    QTest::newRow("scene taken away, edit open") << false << true;
    QTest::newRow("scene taken away, end waiting") << true << true;
}

void SceneRenamingTest::dropsPendingRenames()
{
    QFETCH(bool, ended);
    QFETCH(bool, cleared);
    ShownTable shown({u"a"_s, u"b"_s});
    QSignalSpy renamed(shown.table, &VelmoScenesTable::renameRequested);
    QLineEdit *edit = shown.startRenaming(0);
    QTest::keyClicks(edit, u"x"_s);
    if (ended)
        QTest::keyClick(edit, Qt::Key_Return);
    if (cleared) {
        shown.table->clearScenes();
        add(*shown.table, u"a"_s);
    } else {
        shown.table->finishEditing();
    }
    QVERIFY(!edit->isVisible());
    QVERIFY(Events::untilIdle());
    QCOMPARE(renamed.count(), 0);

    // The next rename gets through, once.
    edit = shown.startRenaming(0);
    QTest::keyClicks(edit, u"x"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    QVERIFY(Events::untilIdle());
    QCOMPARE(renamed.count(), 1);
}

void SceneRenamingTest::mayEndARow_data()
{
    QTest::addColumn<QByteArray>("way");
    for (const char *way : {"Return", "finishEditing", "addButton", "nameLabel", "versionLabel", "statusLabel"})
        QTest::newRow(way) << QByteArray(way);
}

/// Deleted from its own signals.
void SceneRenamingTest::mayEndARow()
{
    QFETCH(QByteArray, way);
    ShownRow shown;
    const auto end = [&] { delete shown.row; };
    connect(shown.row, &VelmoSceneItem::addChanged, this, end);
    connect(shown.row, &VelmoSceneItem::renameRequested, this, end);
    if (way == "addButton") {
        Gestures::click(part(shown.row, way));
    } else if (way.endsWith("Label")) {
        shown.row->setEditingEnabled(false);
        Gestures::doubleClick(part(shown.row, way));
    } else {
        QTest::keyClicks(shown.startRenaming(), u"Market"_s);
        if (way == "Return")
            QTest::keyClick(shown.nameEdit(), Qt::Key_Return);
        else
            shown.row->finishEditing();
    }
    QTRY_VERIFY(!shown.row);
}

VELMO_TEST_MAIN(SceneRenamingTest)
#include "SceneRenamingTest.moc"
