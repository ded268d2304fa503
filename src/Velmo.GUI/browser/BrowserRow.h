#pragma once

#include <QString>

class QEvent;
class QWidget;

/// What the rows of the project list and of the scene list share.
namespace BrowserRow {

/// Colours a row: in the accent, else lighter under the pointer, else at rest. @p border is a style sheet's, for the
/// background.
void setLook(QWidget *background, bool isAccented, bool isHovered, const QString &border = QString());

/// Notes in @p isHovered that the pointer comes or goes; false for every other event.
bool followsPointer(const QEvent *event, bool *isHovered);

/// Shows the tool tip of @p widget as it is written, since names may look like markup; false for every other event and
/// without a tool tip.
bool showsPlainToolTip(QWidget *widget, const QEvent *event);

/// Fixes the width of a column; one that no widget can have gives the nearest.
void fixWidth(QWidget *column, int width);

} // namespace BrowserRow
