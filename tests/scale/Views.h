#pragma once

#include <QString>
#include <QStringList>

#include <memory>

class QWidget;

/// What the application can show: every gallery page, the windows and the boxes.
namespace Views {

/// The look and the wording of the application, for the rest of the process.
void installLook();

QStringList names();

/// Puts what has this name on screen, complete: read, loaded and laid out. Dialogs lie over their window and go with
/// it. Null, after a failed check, when it does not come up.
std::unique_ptr<QWidget> show(const QString &name);

} // namespace Views
