#pragma once

#include "VelmoBaseExport.h"

#include <QString>
#include <QVersionNumber>

/// A release number of the application, such as "2.5.1".
///
/// Written as numbers separated by dots; whatever follows the last number is dropped. A text that does not start with
/// a number gives the default version. Trailing zeros do not matter for the order: 2.5 and 2.5.0 are the same release.
class VELMO_BASE_EXPORT VelmoVersion
{
public:
    /// The default version: no number at all, as old as 0, written as an empty text.
    VelmoVersion() = default;
    /// Reads @p text as told above; blanks round it do not matter.
    explicit VelmoVersion(const QString &text);

    /// The numbers as they were given, separated by dots.
    QString toString() const;

    /// True when this is the older release.
    bool operator<(const VelmoVersion &other) const;

    /// The running application's version: what it has told `QCoreApplication::setApplicationVersion`, else the release
    /// of this library.
    static VelmoVersion current();

private:
    QVersionNumber m_number;
};
