#pragma once

#include <QString>
#include <QStringList>

/// The sample projects that come with the application.
namespace ShippedProjects {

/// The first of @p candidates that is a folder, else the first of them.
QString firstExisting(const QStringList &candidates);

/// The folder of the sample projects: beside an installed application, else in the source tree it was built from.
QString folder();

} // namespace ShippedProjects
