#pragma once

#include <oVIXDock.h>

#include <QTimer>

class QMimeData;
class oVIXCombo;
class oVIXDragDropTags;
struct Scene;

/// The tags of the open scene: those that its crowd has, those that it could have, and a filter that makes everybody
/// else dim. A tag is dragged or double-clicked from one side to the other, or dropped on the filter. The cross of an
/// assigned tag sets it aside, that of an available one deletes it.
class TagsPanel : public oVIXDock
{
    Q_OBJECT

public:
    explicit TagsPanel(QMainWindow *window);

    /// Shows the scene's tags. The filter stays as long as there is its tag.
    void setScene(const Scene &scene);
    /// Hands over at once what has been edited.
    void finishEdits();
    /// The tag that is filtered by; empty for none.
    QString filter() const;

signals:
    /// The user has moved, added or deleted tags; `setScene` with the result is to follow.
    void tagsEdited(const QStringList &assigned, const QStringList &available);
    void filterChanged(const QString &tag);

private:
    void takeOver();
    void fillFilter(const QStringList &names);
    void filterBy(QMimeData *dropped);

    oVIXDragDropTags *m_editor;
    oVIXCombo *m_filter;
    /// Edits are taken over when the editor is done with them.
    QTimer m_takeOver;
};
