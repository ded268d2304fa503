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
    void namesPicturesAfterSubjectAndScale_data()
    {
        QTest::addColumn<QString>("subject");
        QTest::addColumn<double>("scale");
        QTest::addColumn<QString>("fileName");
        QTest::newRow("words") << u"Start Central station"_s << 1.0 << u"start-central-station@1x.png"_s;
        QTest::newRow("markup") << u"<b>../x & y"_s << 2.0 << u"b-x-y@2x.png"_s;
        QTest::newRow("fraction") << u"icons"_s << 1.5 << u"icons@1.5x.png"_s;
    }
    void namesPicturesAfterSubjectAndScale()
    {
        QFETCH(QString, subject);
        QFETCH(double, scale);
        QTEST(PictureFolder(QString(), scale).fileName(subject), "fileName");
    }

    void refusesEmptyPicturesAndReportsFilesThatCannotBeWritten()
    {
        const QTemporaryDir folder;
        PictureFolder pictures(folder.path(), 1);
        QImage picture(4, 4, QImage::Format_RGB32);
        picture.fill(Qt::black);
        QVERIFY(!pictures.save(QImage(), u"null"_s));
        QVERIFY(!pictures.save(picture, u"black"_s));
        picture.setPixelColor(3, 3, Qt::white);
        QVERIFY(pictures.save(picture, u"good"_s));
        QVERIFY(QFile::exists(folder.filePath(u"good@1x.png"_s)));
        QVERIFY(!PictureFolder(folder.filePath(u"none"_s), 1).save(picture, u"good"_s));
    }
};

VELMO_TEST_MAIN(PictureFolderTest)
#include "PictureFolderTest.moc"
