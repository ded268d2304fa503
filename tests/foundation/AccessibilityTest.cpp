#include "support/Assistive.h"
#include "support/TestCase.h"
#include "support/Told.h"

#include "foundation/OvixSvgButton.h"
#include "foundation/QClickableLabel.h"
#include "foundation/QClickableWidget.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString nameOf(QWidget *widget)
{
    return Assistive::of(widget)->text(QAccessible::Name);
}

} // namespace

class AccessibilityTest : public TestCase
{
    Q_OBJECT

private slots:
    void saysWhatItIsAndWhatFor()
    {
        OvixSvgButton button, fileButton;
        button.setFilename(u":/Windows/ClearCross"_s);
        fileButton.setFilename(u"icons/Delete.v2.svg"_s);
        OvixSvgLabel icon;
        icon.setFilename(u":/Windows/Warning"_s);
        QClickableLabel label(u"<a href='x'>Open <b>scene</b></a>"_s);
        QClickableWidget widget;
        new QLabel(&widget); // without a text
        new QLabel(u"Open scene"_s, &widget);
        struct Said
        {
            QWidget *by;
            QAccessible::Role role;
            QString purpose;
        };
        for (const auto &[by, role, purpose] :
             {Said{&button, QAccessible::Button, u"Clear cross"_s}, Said{&fileButton, QAccessible::Button, u"Delete"_s},
              Said{&icon, QAccessible::Graphic, {}}, Said{&label, QAccessible::Button, u"Open scene"_s},
              Said{&widget, QAccessible::Button, u"Open scene"_s}}) {
            QCOMPARE(Assistive::of(by)->role(), role);
            QCOMPARE(nameOf(by), purpose);
            by->setToolTip(u"tip"_s);
            QCOMPARE(nameOf(by), u"tip"_s);
            by->setAccessibleName(u"name"_s);
            QCOMPARE(nameOf(by), u"name"_s);
            QCOMPARE(Assistive::of(by)->text(QAccessible::Description), u"tip"_s);
        }
        QVERIFY(!Assistive::act(&icon));
    }

    void checkableButtonsSayTheirState()
    {
        OvixSvgButton button;
        QAccessibleInterface *accessible = Assistive::of(&button);
        QVERIFY(!accessible->state().checkable && !accessible->state().checked);
        button.setCheckable(true);
        QCOMPARE(accessible->role(), QAccessible::CheckBox);
        QVERIFY(accessible->state().checkable && !accessible->state().checked);
        button.click();
        QVERIFY(accessible->state().checked);
        button.setEnabled(false);
        QVERIFY(accessible->state().disabled);
        button.setCheckable(false);
        QCOMPARE(accessible->role(), QAccessible::Button);
    }

    void pressesLikeAClick()
    {
        OvixSvgButton button;
        button.setCheckable(true);
        QSignalSpy clicked(&button, &OvixSvgButton::clicked);
        QVERIFY(Assistive::act(&button));
        QCOMPARE(clicked.size(), 1);
        QVERIFY(button.isChecked());
        button.setEnabled(false);
        QVERIFY(!Assistive::act(&button));
        button.setEnabled(true);
        button.setIgnoreSingleClick(true);
        QCOMPARE(Assistive::of(&button)->role(), QAccessible::Graphic);
        QVERIFY(!Assistive::act(&button));
        QCOMPARE(clicked.size(), 1);

        QClickableLabel label;
        Told told(&label);
        QVERIFY(Assistive::act(&label));
        QCOMPARE(Assistive::of(&label)->role(), QAccessible::Button);
        label.setIgnoreSingleClick(true);
        QVERIFY(!Assistive::act(&label));
        QCOMPARE(Assistive::of(&label)->role(), QAccessible::StaticText);
        QCOMPARE(told.taken(), u"clicked, clickReleased"_s);

        QClickableWidget widget;
        QSignalSpy widgetClicked(&widget, &QClickableWidget::clicked);
        QVERIFY(Assistive::act(&widget));
        widget.setEnabled(false);
        QVERIFY(!Assistive::act(&widget));
        QCOMPARE(widgetClicked.size(), 1);
    }

    void doesNotKeepWhoPressesWaiting()
    {
        QClickableWidget widget;
        QSignalSpy clicked(&widget, &QClickableWidget::clicked);
        QAccessibleActionInterface *actions = Assistive::of(&widget)->actionInterface();
        actions->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(clicked.isEmpty());
        QTRY_COMPARE(clicked.size(), 1);
        actions->doAction(QAccessibleActionInterface::pressAction());
        widget.setEnabled(false); // meanwhile
        QCoreApplication::sendPostedEvents(&widget, QEvent::MetaCall);
        QCOMPARE(clicked.size(), 1);
    }
};

VELMO_TEST_MAIN(AccessibilityTest)
#include "AccessibilityTest.moc"
