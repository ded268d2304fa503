#include "foundation/OvixSvgButton.h"

#include "foundation/KeyboardPress.h"

#include <QCursor>
#include <QMouseEvent>

OvixSvgButton::OvixSvgButton(QWidget *parent) : OvixSvgLabel(parent)
{ }

OvixSvgButton::~OvixSvgButton() = default;

void OvixSvgButton::setCheckable(bool checkable)
{
    m_checkable = checkable;
    update();
}

bool OvixSvgButton::isCheckable() const
{
    return m_checkable;
}

void OvixSvgButton::setIgnoreSingleClick(bool ignore)
{
    m_ignoreSingleClick = ignore;
}

bool OvixSvgButton::ignoresSingleClick() const
{
    return m_ignoreSingleClick;
}

void OvixSvgButton::click()
{
    if (!isEnabled() || m_ignoreSingleClick)
        return;
    if (m_checkable)
        setChecked(!isChecked());
    emit clicked();
}

void OvixSvgButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (!answersPointer())
        return;
    if (event->button() == Qt::LeftButton) {
        if (m_ignoreSingleClick)
            event->ignore();
        else
            click();
    } else if (event->button() == Qt::RightButton) {
        emit rightClicked(event->globalPosition().toPoint());
    }
}

void OvixSvgButton::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (!answersPointer())
        return;
    if (event->button() == Qt::LeftButton) {
        event->accept();
        emit doubleClicked();
    } else {
        event->ignore();
    }
}

void OvixSvgButton::keyPressEvent(QKeyEvent *event)
{
    if (!isPressKey(this, event))
        OvixSvgLabel::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        click();
}

bool OvixSvgButton::answersPointer() const
{
    // The toolkit does not always know that the pointer is over the button, for instance after a grab.
    return isEnabled() && (underMouse() || rect().contains(mapFromGlobal(QCursor::pos())));
}
