#pragma once

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

/// What the headers of the library and of its sample application say.
namespace SignalHeaders {

/// The classes that have signals of their own.
inline QStringList classesWithSignals()
{
    static const QRegularExpression declared(QStringLiteral("\nclass (?:VELMO_GUI_EXPORT )?(\\w+) : public"));
    QStringList names;
    const QStringList folders = QStringLiteral(VELMO_SOURCE_FOLDERS).split(QLatin1Char(','));
    for (const QString &folder : folders) {
        for (QDirIterator headers(folder, {QStringLiteral("*.h")}, QDir::Files, QDirIterator::Subdirectories);
             headers.hasNext();) {
            QFile file(headers.next());
            if (!file.open(QIODevice::ReadOnly))
                qFatal("cannot read %s", qPrintable(file.fileName()));
            const QString text = QString::fromUtf8(file.readAll());
            const qsizetype place = text.indexOf(QLatin1String("\nsignals:"));
            QRegularExpressionMatch match;
            if (place >= 0 && text.lastIndexOf(declared, place, &match) >= 0)
                names << match.captured(1);
        }
    }
    return names;
}

} // namespace SignalHeaders
