#include "support/Drawings.h"
#include "support/Picture.h"
#include "support/TestCase.h"

#include "foundation/CursorPictures.h"
#include "foundation/VelmoCursor.h"

#include <QTest>
#include <QWidget>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

} // namespace

class CursorTest : public TestCase
{
    Q_OBJECT

private slots:
    void everyShapeIsDrawnForTheScale()
    {
        for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
            for (int i = 0; i < VelmoCursor::ShapeCount; ++i) {
                const QCursor cursor = VelmoCursor::cursor(VelmoCursor::Shape(i), scale);
                const QByteArray which = QByteArray::number(i) + " at " + QByteArray::number(scale);
                QVERIFY2(cursor.shape() == Qt::BitmapCursor, which);
                QCOMPARE(cursor.pixmap().deviceIndependentSize(), QSizeF(32, 32));
                QCOMPARE(cursor.pixmap().devicePixelRatio(), scale);
                const QImage image = cursor.pixmap().toImage();
                // It points with what can be seen, and nothing of it is cut off.
                const QRect drawn = Picture::drawnArea(image);
                QVERIFY2(drawn.contains(cursor.hotSpot() * scale), which);
                QVERIFY2(image.rect().adjusted(1, 1, -1, -1).contains(drawn), which);
                for (int other = 0; other < i; ++other)
                    QVERIFY2(VelmoCursor::cursor(VelmoCursor::Shape(other), scale).pixmap().toImage() != image, which);
            }
        }
    }

    void keepsWhatIsDrawn()
    {
        const auto key = [](double scale) { return VelmoCursor::cursor(VelmoCursor::Zoom, scale).pixmap().cacheKey(); };
        QCOMPARE(key(1.5), key(1.5));
        QVERIFY(key(1.5) != key(2.0));
        QWidget widget;
        QCOMPARE(VelmoCursor::cursorFor(VelmoCursor::Zoom, &widget),
                 VelmoCursor::cursor(VelmoCursor::Zoom, widget.devicePixelRatioF()));
        QCOMPARE(VelmoCursor::cursorFor(VelmoCursor::Zoom, nullptr),
                 VelmoCursor::cursor(VelmoCursor::Zoom, qApp->devicePixelRatio()));
    }

    void fallsBackToTheStandardOne()
    {
        for (const double scale : {0.0, -1.0, 0.1, 1e6, notANumber, infinite})
            QCOMPARE(VelmoCursor::cursor(VelmoCursor::ResizeVertical, scale).shape(), Qt::SizeVerCursor);
        for (const int shape : {-1, VelmoCursor::ShapeCount, std::numeric_limits<int>::max()})
            QCOMPARE(VelmoCursor::cursor(VelmoCursor::Shape(shape), 1).shape(), Qt::ArrowCursor);
        for (const QString &file : {m_drawings.newName(), m_drawings.file("no drawing"), m_drawings.svg("")}) {
            const QByteArray path = file.toLatin1();
            const CursorPicture picture{path.constData(), {1, 1}, Qt::CrossCursor};
            QCOMPARE(CursorPictures::draw(picture, 32, 1).shape(), Qt::CrossCursor);
        }
    }

private:
    Drawings m_drawings;
};

VELMO_TEST_MAIN(CursorTest)
#include "CursorTest.moc"
