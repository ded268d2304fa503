#pragma once

#include <QLatin1String>
#include <QString>

/// The sheet of a rounded frame in these colours. It goes by the class name, so it holds for derived classes too.
inline QString frameBorderSheet(QLatin1String background, QLatin1String edge)
{
    return QStringLiteral("oVIXFrameBorder {\tbackground:%1;\tborder-style:solid;\tborder-width:1px;  "
                          "\tborder-radius: 5px;\tborder-color:%2;}")
        .arg(background, edge);
}
