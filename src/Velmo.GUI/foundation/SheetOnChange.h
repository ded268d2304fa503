#pragma once

#include <QString>
#include <QWidget>

/// Gives @p widget a style sheet unless it has it already: the toolkit restyles the widget and all its children even
/// for an equal text, which costs a thousand times the comparison.
inline void setSheetOnChange(QWidget *widget, const QString &sheet)
{
    if (widget->styleSheet() != sheet)
        widget->setStyleSheet(sheet);
}
