#include "support/TestCase.h"

#include "foundation/OvixSvgButton.h"
#include "foundation/QClickableLabel.h"
#include "foundation/QClickableWidget.h"

#include <QAccessible>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

using Make = std::function<QWidget *()>;
Q_DECLARE_METATYPE(Make)

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

Make iconButton(const QString &filename)
{
    return [filename] {
        auto *button = new OvixSvgButton;
        button->setFilename(filename);
        return button;
    };
}

Make clickableLabel(const QString &text)
{
    return [text] { return new QClickableLabel(text); };
}

QWidget *labelledWidget()
{
    auto *widget = new QClickableWidget;
    new QLabel(widget); // without a text
    new QLabel(u"Open scene"_s, widget);
    return widget;
}

QWidget *icon()
{
    auto *label = new OvixSvgLabel;
    label->setFilename(u":/Windows/Warning"_s);
    return label;
}

} // namespace

class AccessibilityTest : public TestCase
{
    Q_OBJECT

private slots:
    void saysWhatItIsAndWhatFor_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<QAccessible::Role>("role");
        QTest::addColumn<QString>("purpose");
        QTest::newRow("icon button") << iconButton(u":/Windows/ClearCross"_s) << QAccessible::Button
                                     << u"Clear cross"_s;
        QTest::newRow("icon button from a file")
            << iconButton(u"icons/Delete.v2.svg"_s) << QAccessible::Button << u"Delete"_s;
        QTest::newRow("icon button without an icon") << iconButton(QString()) << QAccessible::Button << QString();
        QTest::newRow("clickable label") << clickableLabel(u"Open scene"_s) << QAccessible::Button << u"Open scene"_s;
        QTest::newRow("clickable label, marked up")
            << clickableLabel(u"<a href='x'>Open <b>scene</b></a>"_s) << QAccessible::Button << u"Open scene"_s;
        QTest::newRow("clickable widget") << Make(labelledWidget) << QAccessible::Button << u"Open scene"_s;
        QTest::newRow("icon") << Make(icon) << QAccessible::Graphic << QString();
    }
    void saysWhatItIsAndWhatFor()
    {
        QFETCH(Make, make);
        const std::unique_ptr<QWidget> widget(make());
        QTEST(interfaceOf(widget.get())->role(), "role");
        QTEST(nameOf(widget.get()), "purpose");
        widget->setToolTip(u"tip"_s);
        QCOMPARE(nameOf(widget.get()), u"tip"_s);
        widget->setAccessibleName(u"name"_s);
        QCOMPARE(nameOf(widget.get()), u"name"_s);
        QCOMPARE(interfaceOf(widget.get())->text(QAccessible::Description), u"tip"_s);
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
        button.setIgnoreSingleClick(true);
        QVERIFY(!press(&button));
        button.setIgnoreSingleClick(false);
        button.setEnabled(false);
        QVERIFY(!press(&button));
        QCOMPARE(clicked.size(), 1);
        QVERIFY(button.isChecked());

        QClickableLabel label;
        QStringList told;
        connect(&label, &QClickableLabel::clicked, this, [&] { told << u"clicked"_s; });
        connect(&label, &QClickableLabel::clickReleased, this, [&] { told << u"released"_s; });
        QVERIFY(press(&label));
        QCOMPARE(interfaceOf(&label)->role(), QAccessible::Button);
        label.setIgnoreSingleClick(true);
        QVERIFY(!press(&label));
        QCOMPARE(interfaceOf(&label)->role(), QAccessible::StaticText);
        label.setIgnoreSingleClick(false);
        label.setEnabled(false);
        QVERIFY(!press(&label));
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

    void anIconCannotBePressed()
    {
        const std::unique_ptr<QWidget> label(icon());
        const QStringList actions = interfaceOf(label.get())->actionInterface()->actionNames();
        QVERIFY(!actions.contains(QAccessibleActionInterface::pressAction()));
    }
};

VELMO_TEST_MAIN(AccessibilityTest)
#include "AccessibilityTest.moc"
