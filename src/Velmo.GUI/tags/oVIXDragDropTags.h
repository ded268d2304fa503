#pragma once

#include "VelmoDropData.h"
#include "VelmoGuiExport.h"
#include "messages/VelmoMessageBox.h"
#include "tags/oVIXDragTag.h"

#include <QColor>
#include <QList>
#include <QString>
#include <QWidget>

#include <memory>

class QDropEvent;
class QListWidgetItem;
class oVIXDragDropListWidget;

namespace Ui {
class oVIXDragDropTags;
}

/// Two lists of tags side by side, such as those that something has and those that it may get.
///
/// Tags go from one list to the other by double click, by their button or by dragging, and nowhere else; new ones are
/// typed into a list's add tag. Whether a tag's button moves or deletes it is up to the list's show-all-buttons flag
/// (default yes, which moves); deleting asks the user first. Each list keeps its tags sorted ahead of its add tag. A
/// tag that has moved is a new one, enabled and in the other list's colours.
///
/// Rows that do not exist and drops from elsewhere do nothing, and a row without a tag does not move. The owner may
/// change the lists or delete the editor from any signal and while the question is up.
class VELMO_GUI_EXPORT oVIXDragDropTags : public QWidget
{
    Q_OBJECT
    Q_MOC_INCLUDE(<QDropEvent>)
    Q_MOC_INCLUDE("tags/oVIXDragDropListWidget.h")

public:
    /// Two lists without tags.
    explicit oVIXDragDropTags(QWidget *parent = nullptr);
    ~oVIXDragDropTags() override;

    /// Adds a tag to the left list, the add tag too, and returns its row's item, which the list owns until the tag
    /// moves or goes.
    QListWidgetItem *addLeftItem(QString text, DRAG_BUTTON button);
    /// The same in the right list.
    QListWidgetItem *addRightItem(QString text, DRAG_BUTTON button);
    /// Adds a tag for each of these texts to the left list.
    void addLeftItems(QList<QString> texts, DRAG_BUTTON button);
    /// The same in the right list.
    void addRightItems(QList<QString> texts, DRAG_BUTTON button);
    /// Removes all tags of the left list, the add tag too.
    void clearLeft();
    /// The same in the right list.
    void clearRight();

    /// The texts of the left list in the order of the rows, the add tag's among them.
    QList<QString> getLeftTags() const;
    /// The same of the right list.
    QList<QString> getRightTags() const;

    /// What is written above the left list, as plain text; its name for assistive tools too.
    void setLeftTitle(QString title);
    /// The same for the right list.
    void setRightTitle(QString title);
    /// For all tags of the left list and those that it gets later. Shown opaque.
    void setLeftTagColors(QColor background, QColor text);
    /// The same for the right list.
    void setRightTagColors(QColor background, QColor text);
    /// Whether the button of a tag in the left list moves it. Tags added from now on show optional buttons only where
    /// it does.
    void setLeftShowAllButtons(bool show);
    /// The same for the right list.
    void setRightShowAllButtons(bool show);
    /// What is dragged between the lists (default 0).
    void setDropType(VelmoDropData::Type type);
    /// Shows or hides both add tags.
    void enableAddButton(bool enable);
    /// Enables the tags of the right list with these texts and disables its others, the add tag aside.
    void setEnabledRightItems(const QList<QString> &names);

    /// Asks whether the tag @p name goes, in a modal box; anything but `MsgRejected` means yes.
    VelmoMsgReturnCode promptDeleteQuestion(QString name);

signals:
    /// What `fnChangedList` has been asked for: the texts of a list without its add tag's. Neither a move nor a
    /// deletion sends it.
    void userTagChanged(QList<QString> tags);
    /// The user has typed a tag that its list did not have.
    void newItemAdded(QString text);
    /// The user has deleted a tag, which is taken out of its list after this.
    void itemRemoved(QString text);
    /// A move is done: 1 from left to right, 2 from right to left.
    void genericTagChanged(int direction);

public slots:
    /// Moves the tag of this row of the left list to the right one.
    void fnLeftMove(int row);
    /// The same from the right list.
    void fnRightMove(int row);
    /// The button of this row's tag: moves the tag, or deletes it if the user agrees. Returns after the question.
    void fnLeftChange(int row);
    /// The same in the right list.
    void fnRightChange(int row);
    /// Adds a removable tag and emits `newItemAdded`, unless the list has one of this text already, whatever its case.
    void fnLeftAddNewItem(QString text);
    /// The same in the right list.
    void fnRightAddNewItem(QString text);
    /// Tells the tags of this list with `userTagChanged` if its show-all-buttons flag is set.
    void fnChangedList(oVIXDragDropListWidget *list);

private slots:
    void dropRequested(QDropEvent *event);

private:
    void move(oVIXDragDropListWidget *source, int row);
    void change(oVIXDragDropListWidget *list, int row);
    void addNewItem(oVIXDragDropListWidget *list, const QString &text);
    oVIXDragDropListWidget *otherList(const oVIXDragDropListWidget *list) const;
    int directionFrom(const oVIXDragDropListWidget *source) const;

    std::unique_ptr<Ui::oVIXDragDropTags> m_ui;
};
