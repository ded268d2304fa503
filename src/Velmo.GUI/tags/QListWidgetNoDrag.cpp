#include "tags/QListWidgetNoDrag.h"

#include <QMouseEvent>

QListWidgetNoDrag::QListWidgetNoDrag(QWidget *parent) : QListWidget(parent)
{ }

QListWidgetNoDrag::~QListWidgetNoDrag() = default;

void QListWidgetNoDrag::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons() & Qt::LeftButton)
        event->ignore();
    else
        QListWidget::mouseMoveEvent(event);
}
