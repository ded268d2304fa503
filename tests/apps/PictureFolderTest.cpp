#include "support/TestCase.h"

#include "shots/PictureFolder.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class PictureFolderTest : public TestCase
{
    Q_OBJECT

private slots:
    void refusesEmptyPicturesAndReportsFilesThatCannotBeWritten()
    {
        const QTemporaryDir folder;
        PictureFolder pictures(folder.path(), 1.5);
        QImage picture(4, 4, QImage::Format_RGB32);
        picture.fill(Qt::black);
        QVERIFY(!pictures.save(QImage(), u"null"_s));
        QVERIFY(!pictures.save(picture, u"black"_s));
        picture.setPixelColor(3, 3, Qt::white);
        QVERIFY(pictures.save(picture, u"<b>../x & y"_s));
        QVERIFY(QFile::exists(folder.filePath(u"b-x-y@1.5x.png"_s)));
        QVERIFY(!PictureFolder(folder.filePath(u"none"_s), 1).save(picture, u"good"_s));
    }
};

VELMO_TEST_MAIN(PictureFolderTest)
#include "PictureFolderTest.moc"
