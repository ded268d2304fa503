#include "support/OwnSettings.h"
#include "support/TestCase.h"

#include "scale/LayoutFaults.h"
#include "scale/Views.h"

#include "foundation/OvixSvgLabel.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

using namespace Qt::StringLiterals;

/// Every page, window and box at the scale of the process.
class ViewsFitTest : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        keepSettingsIn(m_settings.path());
        Views::installLook();
    }

    void fits_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString &name : Views::names())
            QTest::newRow(qPrintable(name)) << name;
    }

    void fits()
    {
        QFETCH(QString, name);
        Views::with(name, [](const QWidget *) {
            QStringList faults;
            const QWidgetList windows = QApplication::topLevelWidgets();
            for (const QWidget *window : windows) {
                if (!window->isVisible())
                    continue;
                faults += LayoutFaults::clippedTexts(window);
                faults += LayoutFaults::overlaps(window);
                faults += LayoutFaults::blurredPictures(window);
            }
            for (const QString &fault : std::as_const(faults))
                qInfo().noquote() << fault;
            QCOMPARE(faults.size(), 0);
        });
    }

    /// Half pixels come from places that are not whole device pixels.
    void iconsAreAsSharpWhereverTheyLie()
    {
        QWidget window;
        window.resize(80, 40);
        window.setStyleSheet(u"QWidget { background-color:rgb(28,28,28); }"_s);
        OvixSvgLabel icon(&window);
        icon.setFilename(u":/Windows/Maximize"_s);
        icon.resize(16, 16);
        const qreal scale = qApp->devicePixelRatio();
        const auto drawn = [&](QPoint place) {
            icon.move(place);
            const QRectF room(QPointF(place) * scale, QSizeF(icon.size()) * scale);
            return window.grab().toImage().copy(QRect(room.topLeft().toPoint(), room.size().toSize()));
        };
        const QImage picture = drawn({0, 0});
        for (int x = 1; x < 8; ++x)
            QCOMPARE(drawn({x, x + 3}), picture);
    }

private:
    QTemporaryDir m_settings;
};

VELMO_TEST_MAIN(ViewsFitTest)
#include "ViewsFitTest.moc"
