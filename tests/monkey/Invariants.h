#pragma once

#include <QString>

class QWidget;

/// What always holds, whatever has been done to the widgets.
namespace Invariants {

/// What is wrong with @p root or with anything in it, else an empty text.
QString flawIn(const QWidget *root);

} // namespace Invariants
