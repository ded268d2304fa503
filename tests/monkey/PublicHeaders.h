#pragma once

#include <QFile>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

/// What the public headers of the library say, as the build lists them.
namespace PublicHeaders {

/// The classes that have signals of their own.
inline QStringList classesWithSignals()
{
    static const QRegularExpression exported(QStringLiteral("class VELMO_GUI_EXPORT (\\w+)"));
    QStringList names;
    const QStringList headers = QStringLiteral(VELMO_PUBLIC_HEADERS).split(QLatin1Char(','));
    for (const QString &header : headers) {
        QFile file(QStringLiteral(VELMO_SOURCES "/") + header);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("cannot read %s", qPrintable(file.fileName()));
        const QString text = QString::fromUtf8(file.readAll());
        if (text.contains(QLatin1String("\nsignals:")))
            names << exported.match(text).captured(1);
    }
    return names;
}

} // namespace PublicHeaders
