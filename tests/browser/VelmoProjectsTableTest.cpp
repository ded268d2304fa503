#include "SceneRows.h"
#include "support/Assistive.h"
#include "support/Picture.h"
#include "support/TestCase.h"

#include "browser/VelmoProjectItem.h"
#include "browser/VelmoProjectsTable.h"

#include <QAccessible>
#include <QDir>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace SceneRows;

namespace {

QString pathOf(int project)
{
    return QDir::rootPath() + u"projects/Project %1.vproj"_s.arg(project);
}

VelmoProjectItem *projectAt(const VelmoProjectsTable &table, int row)
{
    return rowAt<VelmoProjectItem>(table, row);
}

QLabel *nameOf(const VelmoProjectItem *row)
{
    return part<QLabel>(row, "nameLabel");
}

struct ShownProjects
{
    explicit ShownProjects(int count) : table(new VelmoProjectsTable(&window))
    {
        for (int i = 0; i < count; ++i)
            table->addProject(pathOf(i), u"today"_s);
        window.resize(600, 300);
        table->setGeometry(0, 0, 600, 260);
        showActive(window);
    }

    QWidget window;
    VelmoProjectsTable *table;
};

} // namespace

class VelmoProjectsTableTest : public TestCase
{
    Q_OBJECT

private slots:
    void isBuiltAsDesigned()
    {
        VelmoProjectsTable table;
        QCOMPARE(table.styleSheet(),
                 u"#backgroundWidget {\tborder-radius:4px;\tbackground-color:rgb(59,59,59);}QListWidget { "
                 "background-color:transparent; }QListWidget::item { selection-background-color:transparent; }"_s);
        QCOMPARE(listOf(table)->verticalScrollBar()->styleSheet(),
                 listOf(VelmoScenesTable())->verticalScrollBar()->styleSheet());
        const QLayout *header = part(&table, "labelsWidget")->layout();
        QCOMPARE(columnsOf(header),
                 QStringList(
                     {u"nameLabel, 0-, Project name, left"_s, u"lastModifiedLabel, 160-160, Last modified, left"_s}));
        const VelmoProjectItem row(nullptr);
        QCOMPARE(row.styleSheet(),
                 u"QLabel {\n\tbackground-color:transparent;\n}\n\n"
                 "QLineEdit {\n\tbackground-color:transparent;\n}"_s);
        table.addProject(pathOf(0), {});
        QCOMPARE(listOf(table)->item(0)->sizeHint(), QSize(0, 22));
        QCOMPARE(projectAt(table, 0)->minimumHeight(), 16);
    }

    void showsFileNameAndWholePath_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("whole");
        const QString root = QDir::rootPath();
        const auto absolute = [&](const char *kind, const QString &path, const QString &name) {
            QTest::newRow(kind) << root + path << name << root + path;
        };
        absolute("file", u"p/Plaza.v2.vproj"_s, u"Plaza.v2.vproj"_s);
        absolute("folder", u"p/Plaza/"_s, u"Plaza"_s);
        absolute("markup", u"p/<b>x &amp; y"_s, u"<b>x &amp; y"_s);
        absolute("endless", u"p/"_s + QString(255, u'W'), QString(255, u'W'));
        QTest::newRow("relative") << u"p/a.vproj"_s << u"a.vproj"_s << QDir::current().absoluteFilePath(u"p/a.vproj"_s);
        QTest::newRow("none") << QString() << QString() << QString();
    }
    void showsFileNameAndWholePath()
    {
        QFETCH(QString, path);
        QFETCH(QString, name);
        QFETCH(QString, whole);
        ShownProjects shown(0);
        shown.table->addProject(path, u"<i>today"_s);
        const QString before = QDir::currentPath();
        const QTemporaryDir elsewhere;
        QVERIFY(QDir::setCurrent(elsewhere.path()));
        QVERIFY(Events::untilIdle());
        QVERIFY(QDir::setCurrent(before));

        const VelmoProjectItem *row = projectAt(*shown.table, 0);
        QCOMPARE(row->getPath(), path);
        QCOMPARE(nameOf(row)->text(), name);
        QCOMPARE(nameOf(row)->toolTip(), whole);
        QCOMPARE(toolTipOver(nameOf(row)), whole);
        // A name that does not fit gives way, and nothing else does.
        const auto *date = part<QLabel>(row, "lastModifiedLabel");
        QCOMPARE(date->text(), u"<i>today"_s);
        QCOMPARE(date->textFormat(), Qt::PlainText);
        QCOMPARE(date->geometry().right(), row->width() - 1);
        QCOMPARE(date->width(), 160);
    }

    void endsALongNameInAnEllipsis()
    {
        ShownProjects shown(0);
        shown.table->addProject(u"/"_s + QString(255, u'W'), {});
        shown.table->addProject(u"/"_s + QString(254, u'W') + u'i', {});
        QVERIFY(Events::untilIdle());
        // What is cut off does not show; without an ellipsis the picture would end in a W.
        const QImage cut = Picture::of(nameOf(projectAt(*shown.table, 0)));
        QCOMPARE(Picture::of(nameOf(projectAt(*shown.table, 1))), cut);
        const QRect end = QRect(cut.width() - 12, 0, 12, cut.height() / 2 - 1);
        QCOMPARE(Picture::drawnArea(cut.copy(end)), QRect());
    }

    void followsTheHeader()
    {
        ShownProjects shown(1);
        part(part(shown.table, "labelsWidget"), "lastModifiedLabel")->setFixedWidth(90);
        shown.table->resize(400, 200);
        shown.table->addProject(pathOf(1), {});
        QVERIFY(Events::untilIdle());
        for (const int row : {0, 1}) {
            QCOMPARE(part(projectAt(*shown.table, row), "lastModifiedLabel")->width(), 90);
            QCOMPARE(projectAt(*shown.table, row)->width(), listOf(*shown.table)->viewport()->width());
        }
    }

    void showsItsState()
    {
        ShownProjects shown(2);
        VelmoProjectItem *row = projectAt(*shown.table, 0);
        const auto colours = [row] {
            const QString sheet = part(row, "backgroundWidget")->styleSheet();
            const QString text = sheet.section(u"QLabel { \tcolor:"_s, 1).section(u';', 0, 0);
            return sheet.section(u"background-color:"_s, 1).section(u';', 0, 0) + u' ' + text;
        };
        QCOMPARE(colours(), u"rgb(39,39,39) rgb(156,156,156)"_s);
        Gestures::hover(nameOf(row));
        QCOMPARE(colours(), u"rgba(255,255,255,38) rgb(255,255,255)"_s);
        Gestures::click(nameOf(row));
        QVERIFY(row->isSelected());
        QCOMPARE(colours(), u"rgba(116, 211, 252,48) rgb(116, 211, 252)"_s);
        Gestures::click(nameOf(projectAt(*shown.table, 1)));
        QCOMPARE(colours(), u"rgb(39,39,39) rgb(156,156,156)"_s);
    }

    void selectsByPath()
    {
        ShownProjects shown(60);
        shown.table->addProject(pathOf(40).toUpper(), {}); // the first one counts
        VelmoProjectsTable *table = shown.table;
        QSignalSpy changed(table, &VelmoProjectsTable::selectionChanged);
        QCOMPARE(table->getProjectCount(), 61);
        QCOMPARE(table->getSelectedProject(), QString());

        table->setSelectedProject(pathOf(40).toUpper());
        QCOMPARE(table->getSelectedProject(), pathOf(40));
        QCOMPARE(changed.count(), 1);
        QVERIFY(isCentred(*table, 40));

        table->setDefaultSelection();
        QCOMPARE(table->getSelectedProject(), pathOf(0));
        QVERIFY(projectAt(*table, 0)->isSelected() && !projectAt(*table, 40)->isSelected());
        for (const bool unknown : {true, false}) {
            table->setDefaultSelection();
            unknown ? table->setSelectedProject(u"/unknown"_s) : table->clearSelection();
            QCOMPARE(table->getSelectedProject(), QString());
            QVERIFY(!projectAt(*table, 0)->isSelected());
        }

        VelmoProjectsTable empty;
        empty.setDefaultSelection();
        QCOMPARE(empty.getSelectedProject(), QString());
    }

    void restylesOnlyRowsThatChange()
    {
        VelmoProjectsTable table;
        for (int i = 0; i < 1000; ++i)
            table.addProject(pathOf(i), {});
        Restyles restyled(table);
        table.setSelectedProject(pathOf(5));
        QCOMPARE(restyled.taken(), QList{5});
        listOf(table)->setCurrentRow(700);
        QCOMPARE(restyled.taken(), QList({5, 700}));
    }

    /// Rows are whole when the application hears of the selection, and it may add some.
    void growsFromItsOwnSignal()
    {
        ShownProjects shown(2);
        connect(shown.table, &VelmoProjectsTable::selectionChanged, this, [&shown] {
            QCOMPARE(projectAt(*shown.table, 1)->isSelected(), shown.table->getSelectedProject() == pathOf(1));
            shown.table->addProject(pathOf(shown.table->getProjectCount()), {});
        });
        Gestures::click(nameOf(projectAt(*shown.table, 1)));
        QVERIFY(Events::untilIdle());
        QCOMPARE(shown.table->getProjectCount(), 3);
        QCOMPARE(shown.table->getSelectedProject(), pathOf(1));
    }

    void speaksOfItsRows()
    {
        ShownProjects shown(2);
        QAccessibleInterface *row = Assistive::of(projectAt(*shown.table, 1));
        QAccessibleInterface *list = row->parent(); // which has rows for its children
        QVERIFY(list->role() == QAccessible::List && list->object() == listOf(*shown.table));
        QCOMPARE(list->text(QAccessible::Name), u"Projects"_s);
        QVERIFY(list->childCount() == 2 && list->child(1) == row && list->indexOfChild(row) == 1 && !list->child(2));
        const QPoint middle = row->rect().center();
        QCOMPARE(list->childAt(middle.x(), middle.y()), row);
        QCOMPARE(row->role(), QAccessible::ListItem);
        QCOMPARE(row->text(QAccessible::Name), u"Project 1.vproj"_s);
        QCOMPARE(listOf(*shown.table)->item(1)->data(Qt::AccessibleTextRole).toString(), u"Project 1.vproj"_s);
        QVERIFY(row->state().selectable && !row->state().selected);
        QVERIFY(Assistive::act(projectAt(*shown.table, 1)));
        QVERIFY(row->state().selected && row->state().focusable && !row->state().focused);
        QCOMPARE(shown.table->getSelectedProject(), pathOf(1));
        Gestures::focus(listOf(*shown.table));
        QVERIFY(row->state().focused && list->focusChild() == row);
    }
};

VELMO_TEST_MAIN(VelmoProjectsTableTest)
#include "VelmoProjectsTableTest.moc"
