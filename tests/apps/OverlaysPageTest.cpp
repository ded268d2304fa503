#include "support/Gestures.h"
#include "support/TestCase.h"

#include "gallery/OverlaysPage.h"

#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

class OverlaysPageTest : public TestCase
{
    Q_OBJECT

private slots:
    void aPageMayGoWhileItsWaitStarts_data()
    {
        QTest::addColumn<QString>("start");
        for (const char *const start : {"Wait", "Wait with text", "Wait with percent"})
            QTest::newRow(start) << QString::fromLatin1(start);
    }
    void aPageMayGoWhileItsWaitStarts()
    {
        QFETCH(QString, start);
        const QPointer<OverlaysPage> page(new OverlaysPage);
        Gestures::show(page);
        QTimer::singleShot(0, page, [page] { delete page; });
        const QList<QPushButton *> buttons = page->findChildren<QPushButton *>();
        const auto button = std::find_if(buttons.begin(), buttons.end(),
                                         [&start](const QPushButton *each) { return each->text() == start; });
        QVERIFY(button != buttons.end());
        (*button)->click();
        QVERIFY(!page);
    }
};

VELMO_TEST_MAIN(OverlaysPageTest)
#include "OverlaysPageTest.moc"
