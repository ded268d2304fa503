#pragma once

#include <functional>

class QPixmap;
class QString;
class QWidget;

/// A dialog's picture on a black plate, and a button that opens the dialog for real: dialogs centre themselves whenever
/// they are shown or resized, so that they cannot be laid out on a page.
QWidget *createDialogSample(const QPixmap &picture, const QString &caption, const std::function<void()> &open);
