#include "support/TestCase.h"

#include "foundation/OvixSvgButton.h"
#include "foundation/QClickableLabel.h"
#include "foundation/QClickableWidget.h"

#include <QAccessible>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QAccessibleInterface *interfaceOf(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

QString nameOf(QWidget *widget)
{
    return interfaceOf(widget)->text(QAccessible::Name);
}

bool press(QWidget *widget)
{
    QAccessibleActionInterface *actions = interfaceOf(widget)->actionInterface();
    const bool offered = actions->actionNames().contains(QAccessibleActionInterface::pressAction());
    actions->doAction(QAccessibleActionInterface::pressAction());
    return offered;
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
            QCOMPARE(interfaceOf(by)->role(), role);
            QCOMPARE(nameOf(by), purpose);
            by->setToolTip(u"tip"_s);
            QCOMPARE(nameOf(by), u"tip"_s);
            by->setAccessibleName(u"name"_s);
            QCOMPARE(nameOf(by), u"name"_s);
            QCOMPARE(interfaceOf(by)->text(QAccessible::Description), u"tip"_s);
        }
        QVERIFY(!press(&icon));
    }

    void checkableButtonsSayTheirState()
    {
        OvixSvgButton button;
        QAccessibleInterface *accessible = interfaceOf(&button);
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
        QVERIFY(press(&button));
        QCOMPARE(clicked.size(), 1);
        QVERIFY(button.isChecked());
        button.setEnabled(false);
        QVERIFY(!press(&button));
        button.setEnabled(true);
        button.setIgnoreSingleClick(true);
        QVERIFY(!press(&button));
        QCOMPARE(clicked.size(), 1);

        QClickableLabel label;
        QStringList told;
        connect(&label, &QClickableLabel::clicked, this, [&] { told << u"clicked"_s; });
        connect(&label, &QClickableLabel::clickReleased, this, [&] { told << u"released"_s; });
        QVERIFY(press(&label));
        QCOMPARE(interfaceOf(&label)->role(), QAccessible::Button);
        label.setIgnoreSingleClick(true);
        QVERIFY(!press(&label));
        QCOMPARE(interfaceOf(&label)->role(), QAccessible::StaticText);
        QCOMPARE(told.join(u' '), u"clicked released"_s);

        QClickableWidget widget;
        QSignalSpy widgetClicked(&widget, &QClickableWidget::clicked);
        QVERIFY(press(&widget));
        widget.setEnabled(false);
        QVERIFY(!press(&widget));
        QCOMPARE(widgetClicked.size(), 1);
    }

    void mayBeDeletedByItsPress()
    {
        QPointer<OvixSvgButton> button = new OvixSvgButton;
        QPointer<QClickableLabel> label = new QClickableLabel;
        QPointer<QClickableWidget> widget = new QClickableWidget;
        connect(button, &OvixSvgButton::clicked, this, [&] { delete button; });
        connect(label, &QClickableLabel::clicked, this, [&] { delete label; });
        connect(widget, &QClickableWidget::clicked, this, [&] { delete widget; });
        press(button);
        press(label);
        press(widget);
        QVERIFY(!button && !label && !widget);
    }
};

VELMO_TEST_MAIN(AccessibilityTest)
#include "AccessibilityTest.moc"
