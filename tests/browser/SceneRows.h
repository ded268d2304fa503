#pragma once

#include "support/Events.h"
#include "support/Gestures.h"

#include "browser/VelmoSceneItem.h"
#include "browser/VelmoScenesTable.h"
#include "foundation/OvixSvgButton.h"

#include <QApplication>
#include <QHelpEvent>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>

#include <memory>
#include <vector>

/// What the tests of the scene list and the project list share: its parts by their names in the forms, and windows to
/// show it in.
namespace SceneRows {

using namespace Qt::StringLiterals;

template <class Part = QWidget> Part *part(const QWidget *whole, const char *name)
{
    return whole->findChild<Part *>(QString::fromLatin1(name));
}

/// "name, least-largest width" with its text and what else is special, for every widget in a layout.
inline QStringList columnsOf(const QLayout *layout)
{
    QStringList columns;
    for (int i = 0; i < layout->count(); ++i) {
        const QWidget *column = layout->itemAt(i)->widget();
        const QString largest =
            column->maximumWidth() == QWIDGETSIZE_MAX ? QString() : QString::number(column->maximumWidth());
        columns << u"%1, %2-%3"_s.arg(column->objectName()).arg(column->minimumWidth()).arg(largest);
        if (const auto *label = qobject_cast<const QLabel *>(column)) {
            columns.last() += label->text().isEmpty() ? QString() : u", "_s + label->text();
            columns.last() += label->alignment() == Qt::AlignCenter ? u""_s : u", left"_s;
        }
        if (column->sizePolicy().horizontalPolicy() == QSizePolicy::MinimumExpanding)
            columns.last() += u", expands"_s;
        columns.last() += column->isHidden() ? u", hidden"_s : u""_s;
    }
    return columns;
}

/// The words of the tool tip that a resting pointer brings up.
inline QString toolTipOver(QWidget *widget)
{
    const QPoint point = widget->rect().center();
    QHelpEvent help(QEvent::ToolTip, point, widget->mapToGlobal(point));
    QApplication::sendEvent(widget, &help);
    const QString text = QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
    QToolTip::hideText();
    return text;
}

inline QListWidget *listOf(const QWidget &table)
{
    return part<QListWidget>(&table, "listWidget");
}

template <class Row = VelmoSceneItem> Row *rowAt(const QWidget &table, int row)
{
    return qobject_cast<Row *>(listOf(table)->itemWidget(listOf(table)->item(row)));
}

/// Whether a row stands in the middle of its list, give or take a row.
inline bool isCentred(const QWidget &table, int row)
{
    const QListWidget *list = listOf(table);
    const QRect place = list->visualItemRect(list->item(row));
    return qAbs(place.center().y() - list->viewport()->rect().center().y()) <= place.height();
}

/// Tells which rows have been restyled since it was last asked.
class Restyles
{
public:
    explicit Restyles(const QWidget &table)
    {
        const QListWidget *list = listOf(table);
        for (int row = 0; row < list->count(); ++row) {
            if (QWidget *background = part(list->itemWidget(list->item(row)), "backgroundWidget"))
                m_counts.push_back(std::make_unique<Events::Count>(background, QEvent::StyleChange));
        }
    }

    QList<int> taken()
    {
        QList<int> rows;
        for (int row = 0; row < int(m_counts.size()); ++row) {
            if (m_counts[row]->taken() > 0)
                rows << row;
        }
        return rows;
    }

private:
    std::vector<std::unique_ptr<Events::Count>> m_counts;
};

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

inline QLineEdit *startRenaming(const VelmoSceneItem *row)
{
    Gestures::doubleClick(part(row, "nameLabel"));
    return part<QLineEdit>(row, "nameEdit");
}

/// Puts an active window on screen, with the pointer away from it.
inline void showActive(QWidget &window)
{
    Gestures::leave();
    Gestures::show(&window);
    Gestures::focus(&window);
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

    QWidget window;
    QPointer<VelmoSceneItem> row;
    QLineEdit *other;
};

/// A table with editing on.
struct ShownTable
{
    explicit ShownTable(const QStringList &names = {}) : table(new VelmoScenesTable(&window))
    {
        for (const QString &name : names)
            add(*table, name);
        table->setEditingEnabled(true);
        window.resize(760, 400);
        table->setGeometry(window.rect());
        showActive(window);
    }

    QWidget *viewport() const { return listOf(*table)->viewport(); }
    VelmoSceneItem *row(int row) const { return rowAt(*table, row); }

    QWidget window;
    QPointer<VelmoScenesTable> table;
};

} // namespace SceneRows
