#include "foundation/QClickableWidget.h"

#include "foundation/AccessibleWidgets.h"
#include "foundation/KeyboardPress.h"

#include <QMouseEvent>

QClickableWidget::QClickableWidget(QWidget *parent) : QWidget(parent)
{
    AccessibleWidgets::install();
}

QClickableWidget::~QClickableWidget() = default;

void QClickableWidget::click()
{
    if (isEnabled())
        emit clicked();
}

void QClickableWidget::mousePressEvent(QMouseEvent *event)
{
    QWidget::mousePressEvent(event);
    event->setAccepted(event->button() == Qt::LeftButton);
    if (event->isAccepted())
        emit clicked();
}

void QClickableWidget::keyPressEvent(QKeyEvent *event)
{
    if (!isPressKey(this, event))
        QWidget::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        click();
}

void QClickableWidget::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    paintFocusRing(this);
}
