#include "foundation/QClickableLabel.h"

#include "foundation/AccessibleWidgets.h"
#include "foundation/KeyboardPress.h"

#include <QMouseEvent>
#include <QPointer>

QClickableLabel::QClickableLabel(QWidget *parent, Qt::WindowFlags flags) : QLabel(parent, flags)
{
    AccessibleWidgets::install();
}

QClickableLabel::QClickableLabel(const QString &text, QWidget *parent, Qt::WindowFlags flags)
    : QLabel(text, parent, flags)
{
    AccessibleWidgets::install();
}

QClickableLabel::~QClickableLabel() = default;

void QClickableLabel::setIgnoreSingleClick(bool ignore)
{
    m_ignoreSingleClick = ignore;
}

bool QClickableLabel::ignoresSingleClick() const
{
    return m_ignoreSingleClick;
}

void QClickableLabel::click()
{
    if (!isEnabled() || m_ignoreSingleClick)
        return;
    const QPointer<QClickableLabel> alive(this);
    emit clicked();
    if (alive)
        emit clickReleased();
}

void QClickableLabel::mousePressEvent(QMouseEvent *event)
{
    const QPointer<QClickableLabel> alive(this); // a link in the text may lead to our end
    QLabel::mousePressEvent(event);
    if (!alive)
        return;
    event->setAccepted(answersSingleClick(event));
    if (event->isAccepted())
        emit clicked();
}

void QClickableLabel::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<QClickableLabel> alive(this);
    QLabel::mouseReleaseEvent(event);
    if (!alive)
        return;
    event->setAccepted(answersSingleClick(event));
    if (event->isAccepted())
        emit clickReleased();
}

void QClickableLabel::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->setAccepted(event->button() == Qt::LeftButton);
    if (event->isAccepted())
        emit doubleClicked();
}

void QClickableLabel::keyPressEvent(QKeyEvent *event)
{
    if (answersLinkKeys() || !isPressKey(this, event))
        QLabel::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        click();
}

void QClickableLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    if (!answersLinkKeys())
        paintFocusRing(this);
}

/// The keys belong to links and to the selection of text, which show their focus themselves.
bool QClickableLabel::answersLinkKeys() const
{
    return textInteractionFlags() & (Qt::LinksAccessibleByKeyboard | Qt::TextSelectableByKeyboard);
}

bool QClickableLabel::answersSingleClick(const QMouseEvent *event) const
{
    return event->button() == Qt::LeftButton && !m_ignoreSingleClick;
}
