#pragma once

#include "VelmoGuiExport.h"

#include <QDrag>

/// A drag that disposes of itself: make it with `new`, never delete it. After `exec` it is gone at the next return to
/// the event loop.
class VELMO_GUI_EXPORT VelmoDrag : public QDrag
{
    Q_OBJECT

public:
    /// The source is the application object.
    VelmoDrag();
    explicit VelmoDrag(QObject *source);
    ~VelmoDrag() override;

    /// As `QDrag::exec` with `Qt::IgnoreAction` as the default action. `Qt::IgnoreAction` too when there is nothing to
    /// drag (no MIME data) or the source ends before the drag.
    Qt::DropAction exec(Qt::DropActions supportedActions);
    Qt::DropAction exec(Qt::DropActions supportedActions, Qt::DropAction defaultAction);
};
