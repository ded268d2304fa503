#include "tags/oVIXAutoHideLine.h"

#include "tags/TagSheets.h"

#include <QKeyEvent>

oVIXAutoHideLine::oVIXAutoHideLine(QWidget *parent, const QColor &background, const QColor &text) : QLineEdit(parent)
{
    hide();
    setPlaceholderText(tr("Type a new one"));
    setStyleSheet(TagSheets::addLine(background, text));
}

oVIXAutoHideLine::~oVIXAutoHideLine() = default;

// Editing is not finished by this: the base class, which would say so, is left out.
void oVIXAutoHideLine::focusOutEvent(QFocusEvent * /*event*/)
{
    hide();
}

void oVIXAutoHideLine::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        clear();
        hide();
    } else {
        QLineEdit::keyPressEvent(event); // Return may lead to our end
    }
    event->accept();
}
