#pragma once

#include <QScopedValueRollback>

class QAbstractItemView;
class QWidget;

/// Keeps a view of row widgets fast while it is filled on screen.
///
/// A plain view runs its whole pending layout and places every row widget at each insertion, and every new row widget
/// asks for a repaint of its own. With this, both happen once, at the next turn of the event loop: until then row
/// widgets have no place yet, and the viewport is not repainted. Build row widgets with the viewport as their parent:
/// under another one they are styled twice.
///
/// The view calls `inserting` round its `rowsInserted`, leaves `updateEditorGeometries` out while `isInserting`, and
/// calls `release` after `doItemsLayout` and when it is hidden: a hidden view does not run its posted layout, and a
/// held viewport would not paint after the next show.
class DeferredRows
{
public:
    explicit DeferredRows(QAbstractItemView *view);

    /// Lets a new row widget wait for its place outside the viewport: at the first row's place it would take the
    /// pointer that is over that row.
    static void park(QWidget *widget);

    [[nodiscard]] QScopedValueRollback<bool> inserting();
    bool isInserting() const;
    void release();

private:
    QAbstractItemView *m_view;
    bool m_inserting = false;
    bool m_holdsUpdates = false;
};
