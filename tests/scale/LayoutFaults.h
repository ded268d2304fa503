#pragma once

#include <QStringList>

class QWidget;

/// What is wrong with how a window on screen is laid out at the scale of this process: one line a fault, empty when
/// all is well. Looked at is what shows of the window.
namespace LayoutFaults {

/// Texts that have less room than they need: in their own widget, unless it shortens them itself, and in all widgets
/// round it, unless one of them scrolls.
QStringList clippedTexts(const QWidget *window);

/// Widgets that lie over a sibling without being made for that.
QStringList overlaps(const QWidget *window);

/// Pictures that the screen would have to stretch: those of labels which are not of the screen's density, and icons
/// whose room is a whole number of device pixels while their picture is of another size.
QStringList blurredPictures(const QWidget *window);

} // namespace LayoutFaults
