#pragma once

#include <QSettings>
#include <QString>

/// Keeps the settings of the program in @p folder from now on, instead of the user's.
inline void keepSettingsIn(const QString &folder)
{
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
    QSettings::setPath(QSettings::IniFormat, QSettings::SystemScope, folder);
}
