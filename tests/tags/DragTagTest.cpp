#include "support/Gestures.h"
#include "support/TestCase.h"
#include "support/Told.h"

#include "foundation/OvixSvgLabel.h"
#include "foundation/QClickableLabel.h"
#include "foundation/VelmoStyle.h"
#include "tags/oVIXAutoHideLine.h"
#include "tags/oVIXDragTag.h"

#include <QAccessible>
#include <QApplication>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A tag in a window, with what it tells.
struct Shown : QWidget
{
    oVIXDragTag *tag;
    QLineEdit *other = new QLineEdit(this);
    Told told{tag};

    explicit Shown(DRAG_BUTTON button)
        : tag(new oVIXDragTag(u"Tree"_s, QColor(39, 39, 39), QColor(219, 219, 219), button, true, this))
    {
        resize(300, 100);
        tag->move(10, 10);
        if (tag->isAdd())
            tag->resize(200, 20);
        other->setGeometry(0, 60, 100, 20);
        Gestures::show(this);
        Gestures::focus(this);
        other->setFocus();
    }

    QClickableLabel *button() const { return tag->findChild<QClickableLabel *>(); }
    oVIXAutoHideLine *line() const { return tag->findChild<oVIXAutoHideLine *>(); }
    void press(Qt::MouseButton button = Qt::LeftButton) const
    {
        Gestures::send(tag, QEvent::MouseButtonPress, {40, 10}, button);
    }
    void moveBy(QPoint delta, Qt::MouseButton held = Qt::LeftButton) const
    {
        Gestures::send(tag, QEvent::MouseMove, QPoint(40, 10) + delta, held);
    }
};

} // namespace

class DragTagTest : public TestCase
{
    Q_OBJECT

private slots:
    void looksAsItsKindSays_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("showButton");
        QTest::addColumn<int>("beside"); // 0: any width
        QTest::addColumn<int>("padding");
        QTest::addColumn<QString>("icon");
        const QString cross = u":/Windows/CancelCross"_s;
        QTest::newRow("none") << int(BUTTON_NONE) << true << 40 << 10 << QString();
        QTest::newRow("optional, off") << int(BUTTON_REMOVE_OPTIONAL) << false << 40 << 10 << QString();
        QTest::newRow("optional, on") << int(BUTTON_REMOVE_OPTIONAL) << true << 55 << 15 << cross;
        QTest::newRow("remove") << int(BUTTON_REMOVE) << false << 55 << 15 << cross;
        QTest::newRow("add") << int(BUTTON_ADD) << false << 0 << 15 << u":/Windows/AddButton"_s;
    }
    void looksAsItsKindSays()
    {
        QFETCH(int, kind);
        QFETCH(bool, showButton);
        QFETCH(int, beside);
        QFETCH(int, padding);
        QFETCH(QString, icon);
        const QString text = u"<b>Tree</b>"_s;
        oVIXDragTag tag(text, QColor(1, 2, 3), QColor(4, 5, 6), DRAG_BUTTON(kind), showButton);
        const QString background = tag.isAdd() ? u"transparent"_s : u"rgb(1, 2, 3)"_s;
        QCOMPARE(
            tag.styleSheet(),
            u"oVIXDragTag {\tbackground-color:"_s + background
                + u";\tcolor:rgb(4, 5, 6);\tmargin-left:4px;\tmargin-top:4px;\tmargin-bottom:0px;\tpadding-left:"_s
                + QString::number(padding)
                + u"px;\tpadding-bottom:2px;\tborder:0px solid transparent;\tborder-radius:3px;\tfont-family:Inter; "
                  "\tfont-size:11px;}oVIXDragTag:disabled {\tbackground-color:rgb(81,81,81);\tcolor:rgb(156,156,"
                  "156);}"_s);
        QCOMPARE(tag.maximumWidth(), beside ? VelmoStyle::styleDockTextWidth(text) + beside : QWIDGETSIZE_MAX);
        QVERIFY(tag.minimumHeight() == 20 && tag.maximumHeight() == 20 && tag.autoFillBackground());
        const auto *label = tag.findChild<OvixSvgLabel *>();
        auto *button = tag.findChild<QClickableLabel *>();
        QCOMPARE(label ? label->firstFilename() : QString(), icon);
        QCOMPARE(label ? label->geometry() : QRect(2, 2, 20, 20), QRect(2, 2, 20, 20));
        QCOMPARE(button != nullptr, label != nullptr);
        QCOMPARE(button ? button->geometry() : QRect(2, 4, 16, 16), QRect(2, 4, 16, 16));

        tag.setColors(Qt::red, QColor());
        QVERIFY(tag.styleSheet().contains(u"color:rgb(0, 0, 0);"_s));
        QCOMPARE(tag.styleSheet().contains(u"rgb(255, 0, 0)"_s), !tag.isAdd());
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&tag);
        QCOMPARE(accessible->role(), QAccessible::ListItem);
        QCOMPARE(accessible->text(QAccessible::Name), text);
        if (button && !tag.isAdd())
            QCOMPARE(QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name), u"Remove"_s);
    }

    void takesAnyText()
    {
        const oVIXDragTag tag(QString(4 << 20, u'W'), Qt::black, Qt::white, BUTTON_REMOVE, true);
        QVERIFY(tag.width() > 0);
    }

    void startsADragAtTheDragDistance()
    {
        QApplication::setStartDragDistance(5);
        Shown shown(BUTTON_REMOVE);
        shown.moveBy({50, 0}); // not pressed
        shown.press(Qt::RightButton);
        shown.moveBy({50, 0});
        shown.press();
        shown.moveBy({3, 1});
        shown.moveBy({50, 0}, Qt::RightButton);
        QCOMPARE(shown.told.taken(), QString());
        shown.moveBy({-3, 2});
        QCOMPARE(shown.told.taken(), u"startDrag"_s);
        shown.moveBy({50, 0}); // once
        QCOMPARE(shown.told.taken(), QString());
        QApplication::setStartDragDistance(10);
        Shown add(BUTTON_ADD);
        add.press();
        add.moveBy({50, 0});
        QCOMPARE(add.told.taken(), QString());
    }

    void tellsOfClicks()
    {
        Shown shown(BUTTON_REMOVE);
        Gestures::press(shown.button());
        QCOMPARE(shown.told.taken(), u"tagClicked"_s);
        Gestures::release(shown.button());
        QTest::mouseClick(shown.tag, Qt::LeftButton, {}, {40, 10});
        QCOMPARE(shown.told.taken(), QString());
        QTest::mouseDClick(shown.tag, Qt::RightButton, {}, {40, 10});
        QCOMPARE(shown.told.taken(), u"doubleClick"_s);
        Shown add(BUTTON_ADD);
        QTest::mouseDClick(add.tag, Qt::LeftButton, {}, {40, 10});
        QCOMPARE(add.told.taken(), QString());
    }

    void addsWhatIsTyped()
    {
        Shown shown(BUTTON_ADD);
        QVERIFY(shown.line()->isHidden());
        QCOMPARE(shown.line()->placeholderText(), u"Type a new one"_s);
        Gestures::click(shown.button());
        QVERIFY(shown.line()->isVisible() && shown.line()->hasFocus());
        QCOMPARE(shown.line()->geometry(), QRect(0, 0, 150, 18));
        QTest::keyClicks(shown.line(), u"red,green"_s);
        QTest::keyClick(shown.line(), Qt::Key_Return);
        QCOMPARE(shown.told.taken(), u"tagAdd red.green"_s);
        QVERIFY(shown.line()->isHidden() && shown.line()->text().isEmpty());
        shown.tag->fnAddClicked();
        QTest::keyClick(shown.line(), Qt::Key_Return);
        QCOMPARE(shown.told.taken(), u"tagAdd "_s);
    }

    void hidesTheLineWithoutAdding()
    {
        Shown shown(BUTTON_ADD);
        int finished = 0;
        connect(shown.line(), &QLineEdit::editingFinished, &shown, [&finished] { ++finished; });
        shown.tag->fnAddClicked();
        QTest::keyClicks(shown.line(), u"red"_s);
        shown.other->setFocus();
        QVERIFY(shown.line()->isHidden());
        QCOMPARE(shown.line()->text(), u"red"_s);
        shown.tag->fnAddClicked();
        QTest::keyClick(shown.line(), Qt::Key_Escape);
        QVERIFY(shown.line()->isHidden() && shown.line()->text().isEmpty());
        QCOMPARE(finished, 0);
        QCOMPARE(shown.told.taken(), QString());
        oVIXDragTag plain(u"Tree"_s, {}, {}, BUTTON_NONE, true); // has no line
        plain.fnAddClicked();
        plain.fnAddNewTag();
        plain.fnHideLine();
    }
};

VELMO_TEST_MAIN(DragTagTest)
#include "DragTagTest.moc"
