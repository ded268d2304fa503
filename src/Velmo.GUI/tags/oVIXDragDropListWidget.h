#pragma once

#include "VelmoDropData.h"
#include "VelmoGuiExport.h"
#include "tags/oVIXDragTag.h"

#include <QColor>
#include <QListWidget>

#include <memory>

class DeferredRows;

/// A list of tags, one a row, that are clicked, double-clicked, dragged and dropped.
///
/// The list makes the tags, keeps those in order that are inserted so, starts their drags, and tells its owner with row
/// numbers what the user asks for. It decides nothing: a drop changes no list unless the owner does. Rows cannot be
/// selected. Rows that are added while the list is on screen take their place at the next turn of the event loop, and
/// their tags are not visible before they first come into view. The owner may delete the list or its rows from any
/// signal. Assistive tools see a list of the tags, which have their buttons for children; pressing a tag is a double
/// click on it.
///
/// The arrow keys go from tag to tag and draw a ring round the current one. Return and Space do what a double click on
/// it does, and open the line of the add tag; Delete presses the tag's button, if it has one.
class VELMO_GUI_EXPORT oVIXDragDropListWidget : public QListWidget
{
    Q_OBJECT
    Q_MOC_INCLUDE(<QDropEvent>)
    Q_MOC_INCLUDE(<QMouseEvent>)
    // For forms; see the setters.
    Q_PROPERTY(bool showAllButtons READ getShowAllButtons WRITE setShowAllButtons)

public:
    /// A list without tags.
    explicit oVIXDragDropListWidget(QWidget *parent = nullptr);
    ~oVIXDragDropListWidget() override;

    /// Adds a tag and returns its row's item, which the list owns. Sorted, it goes before the add tag or the first text
    /// that is greater, whatever its case; the add tag, and every tag that is not sorted, goes to the end.
    QListWidgetItem *addCustomItem(const QString &text, DRAG_BUTTON button, bool sorted);

    /// Enables the tags with these texts and disables the others, the add tag aside.
    void setEnabledItems(const QList<QString> &names);
    /// Shows or hides the add tag, if there is one.
    void enableAddButton(bool enable);
    /// Recolours the tag of a row. A negative row means all tags and those that are added later; nothing happens for
    /// a row that does not exist.
    void setTagTextColor(QColor background, QColor text, int row);

    /// Whether tags added from now on show an optional button (default yes).
    void setShowAllButtons(bool show);
    /// See `setShowAllButtons`.
    bool getShowAllButtons() const;

    /// What the list's drags carry and which drags it accepts (default 0). `VelmoDropData::NoType` accepts none.
    void setDropType(VelmoDropData::Type type);
    /// See `setDropType`.
    VelmoDropData::Type getDropType() const;

    void doItemsLayout() override;

signals:
    /// The button of this row's tag has been pressed.
    void wantsChange(int row);
    /// This row's tag has been double-clicked.
    void wantsMove(int row);
    /// Something has been dropped on the list. @p event ends with the signal.
    void dropTriggered(QDropEvent *event);
    /// A text, which may be empty, has been typed into the add tag.
    void addNewItem(QString text);

public slots:
    /// Drags the tag that sends the signal. Returns when the drag is over. Nothing without a tag or an event.
    void dragTriggered(QMouseEvent *event);
    /// Removes all rows, the add tag's too.
    void clear();
    /// For the button of a tag of this list: emits `wantsChange`. Nothing when called from elsewhere, as the next one.
    void fnWantsAction();
    /// For a double click on a tag of this list: emits `wantsMove`.
    void fnWantsMove();
    /// For what has been typed into the add tag: emits `addNewItem`.
    void fnAdd(QString text);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void rowsInserted(const QModelIndex &parent, int first, int last) override;
    void rowsAboutToBeRemoved(const QModelIndex &parent, int first, int last) override;
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight, const QList<int> &roles) override;
    void updateEditorGeometries() override;

private:
    oVIXDragTag *tagAt(int row) const;
    bool isBelowView(int row) const;
    void showTagsInView();
    int rowOfSender() const;
    int placeFor(const QString &text);
    void acceptOwnType(QDragMoveEvent *event);
    void insert(QListWidgetItem *item, bool sorted);

    std::unique_ptr<DeferredRows> m_deferred;
    QListWidgetItem *m_addItem = nullptr;
    QColor m_tagColor{39, 39, 39};
    QColor m_tagTextColor;
    VelmoDropData::Type m_dropType = VelmoDropData::Type(0);
    bool m_showAllButtons = true;
    bool m_knownSorted = false;
    QList<QString> m_sortedTexts; // of the rows before the add tag, where they are known to be sorted
    bool m_addsItself = false;
    bool m_tagsWait = false;
};
