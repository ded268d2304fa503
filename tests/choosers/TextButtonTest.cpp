#include "support/Assistive.h"
#include "support/Gestures.h"
#include "support/Picture.h"
#include "support/TestCase.h"
#include "support/Told.h"

#include "choosers/oVIXButton.h"
#include "foundation/oVIXLabelTitle.h"
#include "foundation/oVIXLineEdit.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A button in a window, with what it tells.
struct Shown : QWidget
{
    oVIXButton *button = new oVIXButton(u"Bake"_s, this);
    Told told{button};

    Shown()
    {
        resize(300, 100);
        button->setGeometry(10, 10, 84, 36);
        Gestures::show(this);
    }
};

} // namespace

class TextButtonTest : public TestCase
{
    Q_OBJECT

private slots:
    void tellsOfClicks()
    {
        Shown shown;
        QSignalSpy right(shown.button, &oVIXButton::rightClicked);
        Gestures::click(shown.button);
        Gestures::doubleClick(shown.button);
        Gestures::click(shown.button, Qt::RightButton);
        QCOMPARE(shown.told.taken(), u"clicked, clicked, doubleClicked, clicked, rightClicked"_s);
        QCOMPARE(right[0][0].toPoint(), shown.button->mapToGlobal(shown.button->rect().center()));
        Gestures::press(shown.button);
        Gestures::hover(&shown, {200, 80});
        QTest::mouseRelease(shown.windowHandle(), Qt::LeftButton, {}, {200, 80});
        shown.button->setEnabled(false);
        Gestures::doubleClick(shown.button);
        shown.button->click();
        QCOMPARE(shown.told.taken(), QString());
        shown.button->setEnabled(true);
        shown.button->setFocusPolicy(Qt::StrongFocus);
        Gestures::focus(shown.button);
        QTest::keyClick(shown.button, Qt::Key_Space);
        QCOMPARE(shown.told.taken(), u"clicked"_s);
        QCOMPARE(Picture::colourAt(shown.button, {40, 0}), QColor(116, 211, 252));
    }

    void staysChecked()
    {
        Shown shown;
        Gestures::click(shown.button);
        QVERIFY(!shown.button->isChecked());
        shown.button->setCheckable(true);
        const QColor plain = Picture::colourAt(shown.button, {40, 3});
        Gestures::click(shown.button);
        QVERIFY(shown.button->isChecked());
        QVERIFY(Picture::colourAt(shown.button, {40, 3}) != plain);
        shown.button->setStyleSheet(u"oVIXButton[checked=\"true\"] { background-color:rgb(1,2,3); }"_s);
        QCOMPARE(Picture::colourAt(shown.button, {40, 3}), QColor(1, 2, 3));
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(shown.button);
        QCOMPARE(accessible->role(), QAccessible::CheckBox);
        QCOMPARE(accessible->text(QAccessible::Name), u"Bake"_s);
        QVERIFY(accessible->state().checked);
        QVERIFY(Assistive::act(shown.button));
        QVERIFY(!shown.button->isChecked());
    }

    void putsTheIconBeforeTheText()
    {
        oVIXButton button(u"Bake"_s);
        const int padded = button.sizeHint().width();
        button.setStyleSheet(u"QLabel { background-color:rgb(0,0,0); color:rgb(255,0,0); }"_s);
        const int bare = button.sizeHint().width();
        QCOMPARE(padded, bare + 24);
        button.setIcon(u":/Windows/AddButton"_s);
        QVERIFY(button.sizeHint().width() > bare);
        button.resize(120, 30);
        const qreal scale = button.devicePixelRatio(); // the icon's too
        /// The first and the last column of device pixels with a colour of this blue.
        const auto columns = [&button, scale](int blue) {
            const QImage image = Picture::of(&button, scale);
            QRect found;
            for (int x = 0; x < image.width(); ++x)
                for (int y = 0; y < image.height(); ++y) {
                    const QColor colour = image.pixelColor(x, y);
                    if (colour.red() > 100 && (colour.blue() > 60) == (blue > 60))
                        found |= QRect(x, 0, 1, 1);
                }
            return found;
        };
        for (const Qt::Alignment alignment : {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter}) {
            button.setAlignment(alignment | Qt::AlignVCenter);
            const int gap = columns(0).left() - columns(255).right();
            QVERIFY(gap > 0 && gap < 16 * scale);
        }
        QVERIFY(qAbs(columns(255).left() - (120 * scale - 1 - columns(0).right())) <= 3 * scale);
        button.setEnabled(false);
        QVERIFY(columns(255).isNull()); // dimmed
        button.setIcon(QString());
        QCOMPARE(button.sizeHint().width(), bare);
    }

    void showsItsTextOnOneLine()
    {
        oVIXButton button;
        button.resize(84, 36);
        const auto pictureOf = [&button](const QString &text) {
            button.setText(text);
            return Picture::of(&button);
        };
        QElapsedTimer timer;
        timer.start();
        const QImage image = pictureOf(u"<b>"_s + QString(5'000'000, u'x'));
        QCOMPARE(pictureOf(u"<b>"_s + QString(6'000'000, u'x')), image);
        QVERIFY(button.minimumSizeHint().width() < 84 && button.sizeHint().height() < 36);
        QVERIFY(timer.elapsed() < 1000);
        QCOMPARE(image.pixelColor(80, 18), image.pixelColor(80, 4));
        QCOMPARE(pictureOf(u"a\nb"_s), pictureOf(u"a b"_s));
    }

    void plainOnesAreStyledByTheirClass()
    {
        oVIXLineEdit edit;
        oVIXLabelTitle title;
        title.setText(u"<b>Tags</b>"_s);
        for (QWidget *widget : {static_cast<QWidget *>(&edit), static_cast<QWidget *>(&title)}) {
            widget->resize(100, 24);
            QCOMPARE(Picture::colourAt(widget, {90, 4}), QColor(59, 59, 59));
            widget->setEnabled(false);
            QVERIFY(Picture::colourAt(widget, {90, 4}).alpha() < 255);
        }
        QVERIFY(title.sizeHint().width() > title.fontMetrics().horizontalAdvance(title.text()));
    }
};

VELMO_TEST_MAIN(TextButtonTest)
#include "TextButtonTest.moc"
