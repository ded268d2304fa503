#pragma once

#include "VelmoGuiExport.h"

#include <QString>
#include <QWidget>

#include <array>
#include <memory>

class QLabel;
class QListWidgetItem;

namespace Ui {
class VelmoSceneItem;
}

/// One row of the scene list: toggle, name, version warning and the facts of a scene file.
///
/// The row is 25 logical pixels high. It is drawn in the accent while it is selected or its toggle is on, lighter under
/// the pointer, and grey while disabled. Names and facts come from files: they are shown as plain text, elided at the
/// right to the width that they have. Owned by the list that shows it; the list item is not owned.
class VELMO_GUI_EXPORT VelmoSceneItem : public QWidget
{
    Q_OBJECT

public:
    /// @p item is the list item that hosts the row; it may be null. A row whose item has gone may only be deleted.
    explicit VelmoSceneItem(QListWidgetItem *item, QWidget *parent = nullptr);
    ~VelmoSceneItem() override;

    /// Fills the row. A version warning shows the warning icon with a tool tip.
    void set(const QString &name, bool versionWarning, const QString &lastModified, const QString &bakeStatus,
             const QString &actorCount, const QString &vehicleCount, const QString &timeFramerate,
             const QString &version);

    /// Shows another name; assistive tools and the list item are told it too.
    void setName(const QString &name);
    /// The whole name, however much of it shows.
    QString getName() const;

    /// Whether the toggle is on. Emits nothing.
    void setAddEnabled(bool enabled);
    /// Off at first.
    bool isAddEnabled() const;
    /// Shows or hides the toggle. Without it a double click does not turn it round either.
    void setAddVisible(bool visible);
    /// Whether the row has its toggle, on screen or not. Yes at first.
    bool isAddVisible() const;

    /// Mirrors the list's selection. Emits nothing.
    void setSelected(bool selected);
    /// Off at first.
    bool isSelected() const;

    /// Whether a double click on the name of a selected row starts renaming (default no).
    void setEditingEnabled(bool enabled);

    /// The list item that was given.
    QListWidgetItem *getItem() const;

    /// Fixes the columns' widths, in logical pixels. The vehicles column keeps its own.
    void setWidths(int status, int lastModified, int bake, int actors, int timeFramerate, int version);

    /// Colours the row and its toggle by the state. Every change of the state does so.
    void updateStyle();
    /// Ends renaming as if Return had been pressed.
    void finishEditing();

signals:
    /// The user has turned the toggle round.
    void addChanged();
    /// The user has typed another name. The row keeps the old one until `setName`.
    void renameRequested(QString oldName, QString newName);

private slots:
    void addTriggered();
    void renameTriggered();
    void doubleClickNameTriggered();
    void doubleClickOtherTriggered();
    void editionFinished();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    friend class VelmoScenesTable; // takes the list item away before it goes

    /// A label that shows as much of its text as fits.
    struct ElidedText
    {
        QLabel *label;
        QString text;
    };

    void watchEditionFinished();
    void setText(QLabel *label, const QString &text);
    void showElided(const ElidedText &elided) const;
    bool handleEditKey(int key);

    std::unique_ptr<Ui::VelmoSceneItem> m_ui;
    QListWidgetItem *m_item;
    std::array<ElidedText, 7> m_texts;
    QString m_name;
    bool m_addEnabled = false;
    bool m_selected = false;
    bool m_hovered = false;
    bool m_editingEnabled = false;
};
