#pragma once

#include "support/Events.h"
#include "support/Gestures.h"

#include "browser/VelmoSceneItem.h"
#include "browser/VelmoScenesTable.h"
#include "foundation/OvixSvgButton.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QTest>

/// What the tests of the scene list share: its parts by their names in the forms, and windows to show it in.
namespace SceneRows {

using namespace Qt::StringLiterals;

template <class Part = QWidget> Part *part(const QWidget *whole, const char *name)
{
    return whole->findChild<Part *>(QString::fromLatin1(name));
}

inline QListWidget *listOf(const VelmoScenesTable &table)
{
    return part<QListWidget>(&table, "listWidget");
}

inline VelmoSceneItem *rowAt(const VelmoScenesTable &table, int row)
{
    const QListWidget *list = listOf(table);
    return qobject_cast<VelmoSceneItem *>(list->itemWidget(list->item(row)));
}

/// The button of the last row, or null.
inline OvixSvgButton *newSceneButton(const VelmoScenesTable &table)
{
    const QListWidget *list = listOf(table);
    return qobject_cast<OvixSvgButton *>(list->itemWidget(list->item(list->count() - 1)));
}

inline void add(VelmoScenesTable &table, const QString &name, bool compatible = true)
{
    table.addScene(name, false, u"today"_s, u"Baked"_s, u"12"_s, u"3"_s, u"10s/25"_s, u"2.5"_s, compatible);
}

/// Adds scenes of these names; "!" before a name stands for a scene that is not compatible, "+" for a chosen one.
inline void add(VelmoScenesTable &table, const QStringList &names)
{
    for (const QString &marked : names) {
        const bool hasMark = marked.startsWith(u'!') || marked.startsWith(u'+');
        add(table, marked.mid(hasMark), !marked.startsWith(u'!'));
        if (marked.startsWith(u'+'))
            table.setSceneEnabled(marked.mid(1), true);
    }
}

/// Adds "scene 0", "scene 1" and so on.
inline void fill(VelmoScenesTable &table, int count)
{
    for (int i = 0; i < count; ++i)
        add(table, u"scene %1"_s.arg(i));
}

inline QStringList namesOf(const VelmoScenesTable &table)
{
    QStringList names;
    for (int row = 0; row < table.getSceneCount(); ++row)
        names << rowAt(table, row)->getName();
    return names;
}

/// What does not fit together in a table, else an empty text.
inline QString flawOf(const VelmoScenesTable &table, bool hasAddButton = true)
{
    const QListWidget *list = listOf(table);
    const int scenes = table.getSceneCount();
    if (list->count() != scenes + hasAddButton || (newSceneButton(table) != nullptr) != hasAddButton)
        return u"add button"_s;
    int selected = -1;
    for (int i = 0; i < scenes; ++i) {
        const VelmoSceneItem *row = rowAt(table, i);
        if (!row || row->getItem() != list->item(i) || row->isSelected() != list->item(i)->isSelected())
            return u"row %1"_s.arg(i);
        if (row->isSelected())
            selected = i;
    }
    if (table.getSelectedRow() != selected)
        return u"selected row %1 instead of %2"_s.arg(table.getSelectedRow()).arg(selected);
    if (table.getSelectedScene() != (selected < 0 ? QString() : rowAt(table, selected)->getName()))
        return u"selected scene "_s + table.getSelectedScene();
    return {};
}

/// Puts an active window on screen, with the pointer away from it.
inline void showActive(QWidget &window)
{
    Gestures::leave();
    Gestures::show(&window);
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QVERIFY(Events::untilIdle());
}

/// A selected row that may be renamed, above a line edit that has the focus.
struct ShownRow
{
    ShownRow() : row(new VelmoSceneItem(nullptr, &window)), other(new QLineEdit(&window))
    {
        row->set(u"Plaza"_s, false, u"today"_s, u"Baked"_s, u"12"_s, u"3"_s, u"10s/25"_s, u"2.5"_s);
        row->setEditingEnabled(true);
        row->setSelected(true);
        setWidth(900);
        other->setGeometry(0, 40, 200, 25);
        showActive(window);
        other->setFocus();
    }

    void setWidth(int width)
    {
        window.resize(width, 80);
        row->setGeometry(0, 0, width, 25);
        QVERIFY(Events::untilIdle());
    }
    QLabel *nameLabel() const { return part<QLabel>(row, "nameLabel"); }
    QLineEdit *nameEdit() const { return part<QLineEdit>(row, "nameEdit"); }
    QLineEdit *startRenaming() const
    {
        Gestures::doubleClick(nameLabel());
        return nameEdit();
    }

    QWidget window;
    QPointer<VelmoSceneItem> row;
    QLineEdit *other;
};

/// A table with editing on.
struct ShownTable
{
    explicit ShownTable(const QStringList &names = {}) : table(new VelmoScenesTable(&window))
    {
        add(*table, names);
        table->setEditingEnabled(true);
        window.resize(760, 400);
        table->setGeometry(window.rect());
        showActive(window);
    }

    QWidget *viewport() const { return listOf(*table)->viewport(); }
    VelmoSceneItem *row(int row) const { return rowAt(*table, row); }
    QLineEdit *startRenaming(int row) const
    {
        Gestures::doubleClick(part(rowAt(*table, row), "nameLabel"));
        return part<QLineEdit>(rowAt(*table, row), "nameEdit");
    }

    QWidget window;
    QPointer<VelmoScenesTable> table;
};

} // namespace SceneRows
