#include "look/ElidedLabel.h"

#include <QEvent>

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void ElidedLabel::setFullText(const QString &text)
{
    m_fullText = text;
    // Tool tips take markup; a path is none.
    setToolTip(Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal));
    setAccessibleName(text);
    showElided();
    updateGeometry();
}

QString ElidedLabel::fullText() const
{
    return m_fullText;
}

QSize ElidedLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_fullText), QLabel::sizeHint().height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

bool ElidedLabel::event(QEvent *event)
{
    const bool handled = QLabel::event(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        showElided();
    return handled;
}

void ElidedLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    showElided();
}

void ElidedLabel::showElided()
{
    const QString shown = fontMetrics().elidedText(m_fullText, Qt::ElideMiddle, width());
    if (text() != shown)
        setText(shown);
}
