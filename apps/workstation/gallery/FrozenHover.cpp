#include "gallery/FrozenHover.h"

#include <QCoreApplication>
#include <QEnterEvent>
#include <QWidget>

namespace {

/// Swallows the news that the pointer has left.
class FrozenHover : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Leave && event->type() != QEvent::HoverLeave)
            return false;
        static_cast<QWidget *>(watched)->setAttribute(Qt::WA_UnderMouse);
        return true;
    }
};

} // namespace

void freezeHover(QWidget *widget)
{
    widget->setAttribute(Qt::WA_UnderMouse);
    QEnterEvent enter({}, {}, {});
    QCoreApplication::sendEvent(widget, &enter);
    // Installed last, it is asked first: the widget's own filters do not see the pointer leave either.
    widget->installEventFilter(new FrozenHover(widget));
}
