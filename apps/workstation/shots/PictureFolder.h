#pragma once

#include <QImage>
#include <QString>

/// A folder of pictures named after what they show and their scale.
class PictureFolder
{
public:
    PictureFolder(const QString &path, double scale);

    /// "Market square" at scale 2 is market-square@2x.png.
    QString fileName(const QString &subject) const;
    /// Saves the picture and says where, on the standard output. A picture without size or of one colour only is no
    /// picture: that, and a file that cannot be written, is reported on the standard error.
    bool save(const QImage &picture, const QString &subject);

    /// True for a picture with more than one colour.
    static bool showsSomething(const QImage &picture);

private:
    QString m_path;
    double m_scale;
};
