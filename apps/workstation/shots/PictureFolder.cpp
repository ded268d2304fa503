#include "shots/PictureFolder.h"

#include <QDir>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

PictureFolder::PictureFolder(const QString &path, double scale) : m_path(path), m_scale(scale)
{ }

QString PictureFolder::fileName(const QString &subject) const
{
    QString words;
    for (const QChar character : subject.toLower())
        words += character.isLetterOrNumber() ? character : u' ';
    return u"%1@%2x.png"_s.arg(words.simplified().replace(u' ', u'-'), QString::number(m_scale));
}

bool PictureFolder::save(const QImage &picture, const QString &subject)
{
    const QString path = QDir(m_path).filePath(fileName(subject));
    if (!showsSomething(picture)) {
        std::fprintf(stderr, "%s: the picture is empty\n", qPrintable(path));
        return false;
    }
    if (!picture.save(path)) {
        std::fprintf(stderr, "%s: the picture cannot be written\n", qPrintable(path));
        return false;
    }
    std::printf("%s\n", qPrintable(QDir::toNativeSeparators(path)));
    std::fflush(stdout);
    return true;
}

bool PictureFolder::showsSomething(const QImage &picture)
{
    if (picture.isNull())
        return false;
    const QImage pixels = picture.convertToFormat(QImage::Format_ARGB32);
    const auto *first = reinterpret_cast<const QRgb *>(pixels.constBits());
    const qsizetype count = qsizetype(pixels.width()) * pixels.height();
    return std::any_of(first, first + count, [first](QRgb pixel) { return pixel != *first; });
}
