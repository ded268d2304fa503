#pragma once

#include <QString>

/// The style sheets of a combo's parts. Alignments are written as a label's property takes them.
namespace ComboSheets {

/// The dark strip that all parts lie on.
QString strip();
/// What stands before the choice.
QString caption(const QString &alignment);
QString choice(const QString &alignment);
QString menu();

} // namespace ComboSheets
