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
/// Rows that do not exist, rows without a tag and drops from elsewhere do nothing. The owner may change the lists or
/// delete the editor from any signal and while the question is up.
class VELMO_GUI_EXPORT oVIXDragDropTags : public QWidget
{
    Q_OBJECT
    Q_MOC_INCLUDE(<QDropEvent>)
    Q_MOC_INCLUDE("tags/oVIXDragDropListWidget.h")

public:
    explicit oVIXDragDropTags(QWidget *parent = nullptr);
    ~oVIXDragDropTags() override;

    /// Adds a tag, the add tag too, and returns its row's item, which the list owns until the tag moves or goes.
    QListWidgetItem *addLeftItem(QString text, DRAG_BUTTON button);
    QListWidgetItem *addRightItem(QString text, DRAG_BUTTON button);
    void addLeftItems(QList<QString> texts, DRAG_BUTTON button);
    void addRightItems(QList<QString> texts, DRAG_BUTTON button);
    /// Removes all tags, the add tag too.
    void clearLeft();
    void clearRight();

    /// The texts in the order of the rows, the add tag's among them.
    QList<QString> getLeftTags() const;
    QList<QString> getRightTags() const;

    /// Plain text; the name of the list for assistive tools too.
    void setLeftTitle(QString title);
    void setRightTitle(QString title);
    /// For all tags of the list and those that it gets later.
    void setLeftTagColors(QColor background, QColor text);
    void setRightTagColors(QColor background, QColor text);
    /// Whether a tag's button moves the tag. Tags added from now on show optional buttons only where it does.
    void setLeftShowAllButtons(bool show);
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
    /// Moves the tag of this row to the other list.
    void fnLeftMove(int row);
    void fnRightMove(int row);
    /// The button of this row's tag: moves the tag, or deletes it if the user agrees. Returns after the question.
    void fnLeftChange(int row);
    void fnRightChange(int row);
    /// Adds a removable tag, unless the list has one of this text already, whatever its case.
    void fnLeftAddNewItem(QString text);
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
