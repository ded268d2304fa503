#include "tags/VelmoDrag.h"

#include <QCoreApplication>
#include <QPointer>

VelmoDrag::VelmoDrag() : VelmoDrag(QCoreApplication::instance())
{ }

VelmoDrag::VelmoDrag(QObject *source) : QDrag(source)
{ }

VelmoDrag::~VelmoDrag() = default;

Qt::DropAction VelmoDrag::exec(Qt::DropActions supportedActions)
{
    return exec(supportedActions, Qt::IgnoreAction);
}

Qt::DropAction VelmoDrag::exec(Qt::DropActions supportedActions, Qt::DropAction defaultAction)
{
    const QPointer<VelmoDrag> alive(this); // the source may end while the drag runs
    const Qt::DropAction action = mimeData() ? QDrag::exec(supportedActions, defaultAction) : Qt::IgnoreAction;
    if (alive)
        deleteLater();
    return action;
}
