#include "support/Drawings.h"

#include "support/Files.h"

using namespace Qt::StringLiterals;

QString Drawings::svg(const QByteArray &body, const QByteArray &viewBox)
{
    return file("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"" + viewBox + "\">" + body + "</svg>");
}

QString Drawings::filled(const QByteArray &colour)
{
    return svg("<rect width=\"16\" height=\"16\" fill=\"" + colour + "\"/>");
}

QString Drawings::file(const QByteArray &content, const QString &ending)
{
    const QString name = newName(ending);
    Files::write(name, content);
    return name;
}

QString Drawings::newName(const QString &ending)
{
    static int number = 0;
    return m_folder.filePath(u"drawing%1"_s.arg(++number) + ending);
}
