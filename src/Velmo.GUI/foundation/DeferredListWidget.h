#pragma once

#include <QList>
#include <QListWidget>
#include <QPointer>

/// A list of row widgets that stays fast while it is filled on screen.
///
/// A plain list runs its whole pending layout and places every row widget at each insertion, and every new row widget
/// asks for a repaint of its own. This one does both once, at the next turn of the event loop: until then row widgets
/// have no place yet, and the viewport is not repainted. Build row widgets with the viewport as their parent: under
/// another one they are styled twice.
class DeferredListWidget : public QListWidget
{
    Q_OBJECT

public:
    explicit DeferredListWidget(QWidget *parent = nullptr);
    ~DeferredListWidget() override;

    /// As `setItemWidget`, but the widget waits for its place outside the viewport: at the first row's place it would
    /// take the pointer that is over that row. A widget of fixed width is centred in its row.
    void setRowWidget(QListWidgetItem *item, QWidget *widget);

    void doItemsLayout() override;

protected:
    void hideEvent(QHideEvent *event) override;

protected slots:
    void rowsInserted(const QModelIndex &parent, int first, int last) override;
    void updateEditorGeometries() override;

private:
    void centreWidgets();
    void holdUpdates();
    void releaseUpdates();

    QList<QPointer<QWidget>> m_centredWidgets;
    bool m_inserting = false;
    bool m_holdsUpdates = false;
};
