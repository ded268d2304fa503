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
    /// @p source owns the drag and is what receivers are told as its source. With null nothing is dragged.
    explicit VelmoDrag(QObject *source);
    ~VelmoDrag() override;

    /// As `QDrag::exec` with `Qt::IgnoreAction` as the default action. `Qt::IgnoreAction` too when there is nothing to
    /// drag (no MIME data) or the source ends before the drag.
    Qt::DropAction exec(Qt::DropActions supportedActions);
    /// The same with @p defaultAction proposed where no key asks for another one.
    Qt::DropAction exec(Qt::DropActions supportedActions, Qt::DropAction defaultAction);
};
