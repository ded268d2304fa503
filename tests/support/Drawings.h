#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

/// SVG files for one test, in a folder of their own. Every file has a new name, since icons are kept by name for the
/// life of the process.
class Drawings
{
public:
    /// A document with this view box and body.
    QString svg(const QByteArray &body, const QByteArray &viewBox = "0 0 16 16");
    /// A document of one rectangle that covers it all.
    QString filled(const QByteArray &colour = "#000000");
    QString file(const QByteArray &content, const QString &ending = QStringLiteral(".svg"));
    /// A name that no file has.
    QString newName(const QString &ending = QStringLiteral(".svg"));

private:
    QTemporaryDir m_folder;
};
