#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

/// What the application can show: every gallery page, the windows, the boxes and the menus.
namespace Views {

/// The look and the wording of the application, for the rest of the process.
void installLook();

QStringList names();

/// Puts what has this name on screen, complete: read, loaded and laid out. While it is there, @p look is called with
/// the window in front; a failed check when it does not come up.
void with(const QString &name, const std::function<void(QWidget *front)> &look);

/// Nothing in @p window moves by itself any more.
void endAnimations(const QWidget *window);

} // namespace Views
