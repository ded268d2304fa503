#include "support/Gestures.h"
#include "support/Picture.h"
#include "support/TestCase.h"

#include "docking/OvixThumbnailSizeWidget.h"
#include "docking/PopupPlacement.h"
#include "foundation/oVIXFrameBorder.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QLineEdit>
#include <QPointer>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// The labels in their order, checked ones in brackets.
QString optionsOf(const QWidget &selector)
{
    QStringList labels;
    const QList<QAbstractButton *> options = selector.findChildren<QAbstractButton *>();
    for (const QAbstractButton *option : options) {
        if (!option->isHidden())
            labels << (option->isChecked() ? u'[' + option->text() + u']' : option->text());
    }
    return labels.join(u',');
}

} // namespace

class FloatingWidgetTest : public TestCase
{
    Q_OBJECT

private slots:
    void staysInsideItsParent()
    {
        const QRect parent(100, 100, 200, 200);
        QCOMPARE(popupPlace({150, 130}, {50, 40}, parent), QPoint(150, 130));
        QCOMPARE(popupPlace({390, 390}, {50, 40}, parent), QPoint(249, 259));
        QCOMPARE(popupPlace({-5, 99}, {50, 40}, parent), QPoint(100, 100));
        QCOMPARE(popupPlace({150, 130}, {300, 250}, parent), QPoint(-1, 49));
    }

    void isKeptInsideWindowsWidgetsAndScreens()
    {
        QWidget window;
        window.setGeometry(100, 100, 500, 400);
        QWidget part(&window);
        part.setGeometry(50, 60, 200, 200);
        Gestures::show(&window);
        const auto corner = [](QWidget *parent) {
            oVIXFloatingWidget popup(parent);
            popup.setFixedSize(40, 30);
            popup.showAt(QPoint(10000, 10000));
            return popup.geometry().bottomRight() + QPoint(1, 1);
        };
        QCOMPARE(corner(&window), window.geometry().bottomRight());
        QCOMPARE(corner(&part), QPoint(349, 359));
        QCOMPARE(corner(nullptr), window.screen()->availableGeometry().bottomRight());
    }

    void closesWithoutFocusAndPointer()
    {
        QWidget window;
        window.setGeometry(100, 100, 500, 400);
        QLineEdit elsewhere(&window);
        Gestures::show(&window);
        Gestures::leave();

        oVIXFloatingWidget popup(&window);
        QLineEdit inside(&popup);
        QSignalSpy shown(&popup, &oVIXFloatingWidget::shown);
        QSignalSpy hidden(&popup, &oVIXFloatingWidget::hidden);
        popup.showAt(QPoint(200, 200));
        inside.setFocus();
        QTest::qWait(3 * oVIXFloatingWidget::DelayTimer);
        QVERIFY(popup.isVisible());

        QCursor::setPos(popup.geometry().center());
        Gestures::focus(&elsewhere);
        QTest::qWait(3 * oVIXFloatingWidget::DelayTimer);
        QVERIFY(popup.isVisible());
        QCursor::setPos(popup.geometry().bottomRight() + QPoint(1, 0));
        QTRY_VERIFY(popup.isHidden());
        QCOMPARE(shown.size(), 1);
        QCOMPARE(hidden.size(), 1);
    }

    void replacesTheLookOfAFrame()
    {
        const QString frame = u"oVIXFrameBorder {\tbackground:%1;\tborder-style:solid;\tborder-width:1px;  "
                              "\tborder-radius: 5px;\tborder-color:%2;}"_s;
        QCOMPARE(oVIXFrameBorder().styleSheet(), frame.arg(u"rgb(28,28,28)"_s, u"rgb(39,39,39)"_s));
        oVIXFloatingWidget popup(nullptr);
        QCOMPARE(popup.styleSheet(), frame.arg(u"rgb(39,39,39)"_s, u"rgb(105,105,105)"_s));
        QVERIFY((popup.windowFlags() & Qt::WindowType_Mask) == Qt::ToolTip);
        QVERIFY(popup.windowFlags() & Qt::FramelessWindowHint);
        popup.resize(40, 40);
        QCOMPARE(Picture::colourAt(&popup, QPoint(20, 0)), QColor(105, 105, 105));
        QCOMPARE(Picture::colourAt(&popup, QPoint(0, 0)).alpha(), 0);
    }

    void choosesAThumbnailSize()
    {
        QWidget window;
        window.setGeometry(0, 0, 600, 500);
        Gestures::show(&window);
        OvixThumbnailSizeWidget chooser(&window);
        QSignalSpy selected(&chooser, &OvixThumbnailSizeWidget::sizeSelected);
        connect(&chooser, &OvixThumbnailSizeWidget::sizeSelected, &chooser, &OvixThumbnailSizeWidget::setup);
        const auto open = [&](int size) {
            Gestures::focus(&window);
            chooser.setup(size);
            chooser.showAt(QPoint(50, 50));
            QTRY_VERIFY(chooser.isAncestorOf(QApplication::focusWidget()));
        };
        const auto key = [](Qt::Key which) { QTest::keyClick(QApplication::focusWidget(), which); };

        open(150);
        QCOMPARE(optionsOf(chooser), u"No thumbnail,Small thumbnail,[Medium thumbnail],Large thumbnail"_s);
        QCOMPARE(QAccessible::queryAccessibleInterface(QApplication::focusWidget())->role(), QAccessible::RadioButton);
        key(Qt::Key_Down);
        key(Qt::Key_Down); // round to the first
        key(Qt::Key_Up);
        key(Qt::Key_Return);
        QVERIFY(chooser.isHidden());
        QCOMPARE(selected.value(0).value(0).toInt(), 200);
        QCOMPARE(optionsOf(chooser), u"No thumbnail,Small thumbnail,Medium thumbnail,[Large thumbnail]"_s);
        open(-3); // none of them: the first one is current
        key(Qt::Key_Space);
        QCOMPARE(selected.value(1).value(0).toInt(), 0);
        open(0);
        Gestures::click(chooser.findChildren<QAbstractButton *>().constLast());
        QCOMPARE(selected.value(2).value(0).toInt(), 200);
        open(100);
        key(Qt::Key_Escape);
        QVERIFY(chooser.isHidden());
        QCOMPARE(selected.size(), 3);
    }

    void takesOptionsOfAnyKind()
    {
        QPointer<oVIXFloatingSelectorWidget> selector = new oVIXFloatingSelectorWidget(-5, false, nullptr);
        selector->clear();
        selector->showAt(QPoint(0, 0));
        QTest::keyClick(selector, Qt::Key_Down);
        selector->hide();
        for (const QString &label : {QString(), u"<b>Save & close</b>"_s, u"one\ntwo"_s, QString(100000, u'W')})
            selector->addButton({label.left(9), label}, true);
        selector->showAt(QPoint(0, 0));
        QVERIFY(selector->width() < 320 && !selector->grab().isNull());
        QAbstractButton *option = selector->findChildren<QAbstractButton *>().at(1);
        QCOMPARE(QAccessible::queryAccessibleInterface(option)->text(QAccessible::Name), u"<b>Save & close</b>"_s);
        QString chosen;
        connect(selector, &oVIXFloatingSelectorWidget::optionSelected, this, [&](const QString &key) {
            chosen = key + QString::number(optionsOf(*selector).count(u'['));
            delete selector;
        });
        Gestures::click(option);
        QCOMPARE(chosen, u"<b>Save &3"_s);
        QVERIFY(!selector);
    }
};

VELMO_TEST_MAIN(FloatingWidgetTest)
#include "FloatingWidgetTest.moc"
