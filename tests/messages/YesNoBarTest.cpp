#include "support/Assistive.h"
#include "support/Gestures.h"
#include "support/Picture.h"
#include "support/TestCase.h"

#include "foundation/OvixSvgLabel.h"
#include "foundation/QClickableLabel.h"
#include "messages/VelmoYesNoWidget.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

struct Bar : VelmoYesNoWidget
{
    using VelmoYesNoWidget::enableCaptionColor;
    using VelmoYesNoWidget::getEnableCaptionColor;

    QClickableLabel *ok = findChild<QClickableLabel *>(u"okButton"_s);
    QClickableLabel *cancel = findChild<QClickableLabel *>(u"cancelButton"_s);
};

QString okSheet(const QString &background, const QString &text, const QString &hover)
{
    return u"QLabel {\tborder:0px;\tborder-top-left-radius:4px;\tborder-bottom-left-radius:4px;\tbackground:%1;"
           "\tcolor:%2;}QLabel:hover {\tbackground-color:%3;}QLabel:disabled {\tbackground-color:rgb(26, 79, 109);"
           "\tcolor:rgb(156,156,156);}"_s.arg(background, text, hover);
}

} // namespace

class YesNoBarTest : public TestCase
{
    Q_OBJECT

private slots:
    void startsGreyAndDeaf()
    {
        Bar bar;
        Gestures::show(&bar);
        QCOMPARE(bar.text(), QString());
        QCOMPARE(bar.getOkText(), u"OK"_s);
        QCOMPARE(bar.height(), 36);
        QCOMPARE(bar.ok->width(), 84);
        QCOMPARE(bar.cancel->width(), 20);
        QCOMPARE(bar.cancel->geometry().left(), bar.ok->geometry().right() + 1);
        QCOMPARE(bar.findChild<OvixSvgLabel *>(u"cancelLabel"_s)->size(), QSize(15, 15));
        QCOMPARE(bar.childAt(bar.cancel->mapTo(&bar, bar.cancel->rect().center())), bar.cancel);
        QCOMPARE(bar.ok->styleSheet(), okSheet(u"rgb(156,156,156)"_s, u"rgb(81,81,81)"_s, u"rgb(156,156,156)"_s));

        QSignalSpy accepted(&bar, &VelmoYesNoWidget::accept);
        QSignalSpy rejected(&bar, &VelmoYesNoWidget::reject);
        Gestures::click(bar.ok);
        Gestures::click(bar.findChild<QWidget *>(u"cancelLabel"_s));
        QCOMPARE(accepted.size(), 0);
        QCOMPARE(rejected.size(), 1);
        bar.enableOkButton(true);
        Gestures::click(bar.ok);
        QCOMPARE(accepted.size(), 1);

        bar.setButtonsVisible(false);
        bar.setMsgText(u"Gone"_s);
        QVERIFY(!bar.ok->isVisible() && !bar.cancel->isVisible());
        QVERIFY(bar.findChild<QLabel *>(u"leftSpacer"_s)->isVisible());
        bar.setOkButtonWidth(-5);
        QCOMPARE(bar.ok->maximumWidth(), 0);
    }

    void coloursAndEnablesApart()
    {
        Bar bar;
        bar.setCaptionColor(QColor(1, 2, 3, 100));
        bar.setCaptionTextColor(Qt::black);
        bar.enableOkButton(true);
        QVERIFY(bar.getEnableOkButton() && !bar.getEnableCaptionColor());
        bar.enableOkButtonAndColor(true);
        QVERIFY(bar.getEnableCaptionColor());
        QCOMPARE(bar.ok->styleSheet(), okSheet(u"rgb(1,2,3)"_s, u"rgb(0,0,0)"_s, u"rgb(23, 162, 223)"_s));
        bar.enableOkButton(false);
        bar.enableOkButton(true);
        QVERIFY(bar.getEnableOkButton() && !bar.getEnableCaptionColor());
        bar.enableCaptionColor(true);
        bar.enableOkButtonAndColor(false);
        QVERIFY(!bar.getEnableOkButton() && !bar.getEnableCaptionColor());
    }

    void showsItsLook_data()
    {
        QTest::addColumn<bool>("coloured");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<QColor>("ok");
        QTest::addColumn<QColor>("cancel");
        const QColor cancel(81, 81, 81);
        QTest::newRow("grey") << false << true << QColor(156, 156, 156) << cancel;
        QTest::newRow("blue") << true << true << QColor(22, 129, 189) << cancel;
        QTest::newRow("disabled") << true << false << QColor(26, 79, 109) << QColor(39, 39, 39);
    }
    void showsItsLook()
    {
        QFETCH(bool, coloured);
        QFETCH(bool, enabled);
        Bar bar;
        bar.enableCaptionColor(coloured);
        bar.setEnabled(enabled);
        Gestures::leave();
        bar.resize(400, 36);
        QTEST(Picture::colourAt(bar.ok, {10, 10}), "ok");
        QTEST(Picture::colourAt(&bar, bar.findChild<OvixSvgLabel *>(u"cancelLabel"_s)->mapTo(&bar, QPoint(0, 7))),
              "cancel");
        QTEST(Picture::colourAt(bar.cancel, {10, 3}), "cancel");
        QCOMPARE(Picture::colourAt(&bar, {10, 10}), QColor(39, 39, 39));
    }

    void answersKeysOnceForEveryEnabling()
    {
        Bar bar;
        Gestures::show(&bar);
        QVERIFY(QTest::qWaitForWindowActive(&bar));
        QSignalSpy accepted(&bar, &VelmoYesNoWidget::accept);
        QSignalSpy rejected(&bar, &VelmoYesNoWidget::reject);
        const auto answers = [&](Qt::Key key) {
            accepted.clear();
            rejected.clear();
            QTest::keyClick(bar.windowHandle(), key);
            return QPoint(int(accepted.size()), int(rejected.size()));
        };
        bar.enableOkButton(true);
        QCOMPARE(answers(Qt::Key_Return), QPoint(0, 0));
        bar.enableKeyboardShorcuts();
        QCOMPARE(answers(Qt::Key_Return), QPoint(1, 0));
        QCOMPARE(answers(Qt::Key_Enter), QPoint(1, 0));
        QCOMPARE(answers(Qt::Key_Escape), QPoint(0, 1));
        bar.disableKeyboardShorcuts();
        QCOMPARE(answers(Qt::Key_Return), QPoint(1, 0));
        bar.enableKeyboardShorcuts();
        QCOMPARE(answers(Qt::Key_Return), QPoint(2, 0));
        bar.enableOkButton(false);
        QCOMPARE(answers(Qt::Key_Return), QPoint(0, 0));
        QCOMPARE(answers(Qt::Key_Escape), QPoint(0, 2));
        bar.setEnabled(false);
        QCOMPARE(answers(Qt::Key_Escape), QPoint(0, 0));
    }

    void isPressedByAssistiveTools()
    {
        Bar bar;
        QSignalSpy rejected(&bar, &VelmoYesNoWidget::reject);
        QCOMPARE(QAccessible::queryAccessibleInterface(bar.ok)->text(QAccessible::Name), u"OK"_s);
        QAccessibleInterface *cancel = QAccessible::queryAccessibleInterface(bar.cancel);
        QCOMPARE(cancel->role(), QAccessible::Button);
        QCOMPARE(cancel->text(QAccessible::Name), u"Cancel"_s);
        QVERIFY(Assistive::act(bar.cancel));
        QCOMPARE(rejected.size(), 1);
    }
};

VELMO_TEST_MAIN(YesNoBarTest)
#include "YesNoBarTest.moc"
