#pragma once

#include <QListWidget>

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

    void doItemsLayout() override;

protected:
    void hideEvent(QHideEvent *event) override;

protected slots:
    void rowsInserted(const QModelIndex &parent, int first, int last) override;
    void updateEditorGeometries() override;

private:
    void holdUpdates();
    void releaseUpdates();

    bool m_inserting = false;
    bool m_holdsUpdates = false;
};
