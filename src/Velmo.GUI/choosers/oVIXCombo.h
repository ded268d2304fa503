#pragma once

#include "VelmoGuiExport.h"

#include <QHash>
#include <QLabel>
#include <QList>
#include <QPointer>
#include <QString>

#include <memory>

class QAction;
class QMenu;
class QMimeData;

struct ComboItems;

namespace Ui {
class oVIXCombo;
}

/// The drop-down chooser: a rounded strip with a caption, the current choice and a button, 20 logical pixels high. A
/// click opens a menu of the items.
///
/// An item has a visible text and a hidden value, its "meta". Of several items with one meta (or one text) the first is
/// meant. Besides the items the combo can show a free text, for instance for a mixed selection: it is then in override
/// mode, clicks on the texts open nothing, and the button shows a cross.
///
/// Texts are plain text; what is too long is shown with an ellipsis. Indexes outside the items are ignored.
///
/// With a focus policy set, Space and Return press the button and Down opens the menu. Assistive tools are told a combo
/// box with the caption as its name (else the tool tip), the choice as its value and text, and whether the menu is
/// open; the open menu is its child, and pressing an item of it chooses.
class VELMO_GUI_EXPORT oVIXCombo : public QLabel
{
    Q_OBJECT
    // For forms; see the setters.
    Q_PROPERTY(QString text READ caption WRITE setText)
    Q_PROPERTY(Qt::Alignment alignment READ alignment WRITE setAlignment)
    Q_PROPERTY(bool override READ isOverride WRITE setOverride)
    Q_PROPERTY(bool allowOverride READ allowOverride WRITE setAllowOverride)

public:
    /// A combo without items, caption or choice.
    explicit oVIXCombo(QWidget *parent = nullptr);
    ~oVIXCombo() override;

    /// Appends an item; an empty meta stands for the text. The first item's text is shown, but is not chosen by that.
    void addItem(QString text, QString meta);
    /// Appends an item for each text; where there are fewer metas than texts, the texts stand for them.
    void addItems(QList<QString> texts, QList<QString> metas);
    /// Removes all items and empties the choice. Override mode stays as it is.
    void clear();
    /// How many items there are, those that are not enabled among them.
    int count() const;
    /// Whether there are no items.
    bool isEmpty() const;
    /// Empty out of range, as for `itemMeta`.
    QString itemText(int index) const;
    /// The hidden value of an item, as it was given.
    QString itemMeta(int index) const;

    /// -1 when nothing has been chosen. In override mode the index from before.
    int currentIndex() const;
    /// What is shown as the choice, in override mode too.
    QString getCurrentComboText() const;
    /// In override mode the override text, else the meta of the current item, else empty.
    QString getCurrentComboMeta() const;
    /// The first item with this meta, or -1.
    int getComboMetaIndex(QString meta) const;

    /// Chooses an item and leaves override mode. Like every operation it does not emit `currentIndexChanged`.
    void setCurrentIndex(int index);
    /// Shows @p text and chooses the first item with this meta, or else with this text. When there is none, override
    /// mode is turned on with @p meta, or else @p text, as the override text.
    void setComboText(QString text, QString meta);
    /// Chooses the first item with this meta; nothing happens when there is none.
    void setComboMeta(QString meta);

    /// Renames an item. The choice follows when it is the current one.
    void setItemText(int index, QString text);
    /// Items that are not enabled are left out of the menu.
    void setItemEnabled(int index, bool enabled);
    /// Removes an item. In place of the current item the first remaining one is chosen; with the last item the choice
    /// is emptied. A menu that is open goes on offering what it was opened with.
    void removeItem(int index);
    /// Removes the first item with this text, if any.
    void removeItem(QString text);

    /// Turns override mode on or off, unless it is not allowed.
    void setOverride(bool on);
    /// Whether it was turned on last, allowed or not.
    bool isOverride() const;
    /// Whether override mode can be turned on or off, and counts. On by default.
    void setAllowOverride(bool allow);
    /// See `setAllowOverride`.
    bool allowOverride() const;

    /// Makes this a yes/no chooser: two items "YES" and "NO", @p caption as wide as there is room for.
    void setYesNo(QString caption);
    /// The same with the caption that there is.
    void setYesNo();
    /// Chooses "YES" or "NO"; only with exactly two items.
    void setChecked(bool checked);
    /// Whether the first item is the current one.
    bool isChecked() const;

    /// The caption; it takes the place of the `QLabel` function, as does `setAlignment`.
    void setText(QString caption);
    /// Left (the default): the caption on the left and the choice beside the button. Right: the texts side by side.
    /// Horizontally centred: both in the middle of their room.
    void setAlignment(Qt::Alignment alignment);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// An item of the open menu is under the pointer, or reached by key.
    void hovered(int index);
    /// The user has chosen an item in the menu, be it the current one again. Comes after `menuClosed`.
    void currentIndexChanged(int index);
    /// The application's drag payload was dropped here. @p data lives only as long as the signal is being sent: copy
    /// what is needed. @p source is where the drag came from, null from another program.
    void dropped(QMimeData *data, QObject *source);
    /// The button was clicked while there are no items; the choice has been emptied.
    void resetCombo();
    /// The menu is about to open; it keeps its own event loop until `menuClosed`.
    void menuOpened();
    /// The menu has closed, with a choice or without one.
    void menuClosed();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private slots:
    void labelClicked();
    void buttonClicked();
    void showMenu();
    void hoveredMenuAction(QAction *action);
    void triggeredMenuAction(QAction *action);

private:
    QString caption() const;
    bool inOverrideMode() const;
    void showChoice(const QString &text);
    void fillMenu();
    void updateStyle();

    friend class AccessibleCombo;

    std::unique_ptr<Ui::oVIXCombo> m_ui;
    std::unique_ptr<ComboItems> m_items;
    QString m_overrideText;
    int m_current = -1;
    bool m_allowOverride = true;
    bool m_override = true;
    QPointer<QMenu> m_menu;
    QPointer<QAction> m_triggered;
    QHash<QAction *, int> m_actions;
};
