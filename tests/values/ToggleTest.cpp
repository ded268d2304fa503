#include "support/Assistive.h"
#include "support/Gestures.h"
#include "support/Picture.h"
#include "support/TestCase.h"

#include "foundation/OvixSvgButton.h"
#include "values/oVIXToggle.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QFrame>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

void addStates(oVIXToggle *toggle, const QStringList &names = {u"a"_s, u"b"_s, u"c"_s})
{
    for (const QString &name : names)
        toggle->addState(u":/Design/Lock"_s, u":/Design/LockChecked"_s, name, {});
}

OvixSvgButton *buttonOf(const oVIXToggle *toggle, int index)
{
    return toggle->findChildren<OvixSvgButton *>()[index];
}

QFrame *highlightOf(const oVIXToggle *toggle)
{
    return toggle->findChild<QFrame *>(QString(), Qt::FindDirectChildrenOnly);
}

QList<int> placesOf(const oVIXToggle *toggle)
{
    QList<int> places;
    const QList<OvixSvgButton *> buttons = toggle->findChildren<OvixSvgButton *>();
    for (const OvixSvgButton *button : buttons)
        places << button->x();
    return places;
}

} // namespace

class ToggleTest : public TestCase
{
    Q_OBJECT

private slots:
    void selectsTheFirstStateSilently()
    {
        oVIXToggle toggle;
        QSignalSpy changed(&toggle, &oVIXToggle::changed);
        QCOMPARE(toggle.minimumSize(), QSize(32, 32));
        QCOMPARE(toggle.getCurrentState(), QString());
        addStates(&toggle);
        toggle.addState(u":/Design/Lock"_s, {}, u"d"_s, u"tip"_s);
        QCOMPARE(toggle.getCurrentState(), u"a"_s);
        QVERIFY(buttonOf(&toggle, 0)->isChecked() && !buttonOf(&toggle, 1)->isChecked());
        QCOMPARE(buttonOf(&toggle, 0)->toolTip(), u"a"_s);
        QCOMPARE(buttonOf(&toggle, 3)->toolTip(), u"tip"_s);
        QCOMPARE(highlightOf(&toggle)->styleSheet(), u"QFrame {\tbackground: rgba(116, 211, 252,48);}"_s);
        toggle.setState(u"a"_s);
        for (const QString &unknown : {u"x"_s, QString()}) {
            toggle.setState(unknown);
            toggle.setStateEnabled(unknown, false);
            toggle.setStateVisible(unknown, false);
            toggle.setStateToolTip(unknown, u"tip"_s);
        }
        toggle.resize(128, 50);
        Gestures::show(&toggle);
        QCOMPARE(highlightOf(&toggle)->geometry(), QRect(0, 0, 32, 50));
        Gestures::click(buttonOf(&toggle, 0));
        QTest::qWait(150);
        QCOMPARE(changed.size(), 0);
    }

    void slidesToTheStateThatIsClicked()
    {
        oVIXToggle toggle;
        addStates(&toggle);
        Gestures::show(&toggle);
        QSignalSpy changed(&toggle, &oVIXToggle::changed);
        QElapsedTimer clock;
        clock.start();
        Gestures::click(buttonOf(&toggle, 2));
        QCOMPARE(toggle.getCurrentState(), u"c"_s);
        QVERIFY(buttonOf(&toggle, 2)->isChecked() && !buttonOf(&toggle, 0)->isChecked());
        QCOMPARE(changed.size(), 0);
        QTRY_COMPARE(changed, QList<QVariantList>{{u"c"_s}});
        QVERIFY(clock.elapsed() >= 90);
        QCOMPARE(highlightOf(&toggle)->x(), 64);
        QCOMPARE(toggle.childAt(70, 5), buttonOf(&toggle, 2)); // the highlight lets the mouse through
        QVERIFY(Picture::colourAt(&toggle, {66, 2}) != Picture::colourAt(&toggle, {34, 2}));

        toggle.setStateEnabled(u"a"_s, false);
        Gestures::click(buttonOf(&toggle, 0));
        QCOMPARE(toggle.getCurrentState(), u"c"_s);
        toggle.setState(u"a"_s);
        QCOMPARE(toggle.getCurrentState(), u"a"_s);
    }

    void tellsOnlyTheStateThatIsReached()
    {
        oVIXToggle toggle;
        addStates(&toggle);
        Gestures::show(&toggle);
        QSignalSpy changed(&toggle, &oVIXToggle::changed);
        toggle.setState(u"b"_s);
        QTest::qWait(30);
        toggle.setState(u"c"_s);
        toggle.setState(u"c"_s);
        QTRY_COMPARE(highlightOf(&toggle)->x(), 64);
        QTRY_COMPARE(changed, QList<QVariantList>{{u"c"_s}});
    }

    void closesTheGapsOfHiddenStates()
    {
        oVIXToggle toggle;
        addStates(&toggle);
        QCOMPARE(toggle.width(), 96);
        toggle.setStateVisible(u"a"_s, false); // before the first show nothing is visible
        QCOMPARE(toggle.width(), 64);
        QCOMPARE(placesOf(&toggle).mid(1), (QList<int>{0, 32}));
        Gestures::show(&toggle);
        QVERIFY(!buttonOf(&toggle, 0)->isVisible() && buttonOf(&toggle, 1)->isVisible());
        QSignalSpy changed(&toggle, &oVIXToggle::changed);
        toggle.setState(u"b"_s);
        QTRY_COMPARE(changed.size(), 1);
        QCOMPARE(highlightOf(&toggle)->x(), 32); // where it would be among all states
        toggle.setStateVisible(u"b"_s, false);
        toggle.setStateVisible(u"c"_s, false);
        QCOMPARE(toggle.width(), 32);
        toggle.setStateVisible(u"a"_s, true);
        toggle.setStateVisible(u"c"_s, true);
        QCOMPARE(toggle.width(), 64);
        QCOMPARE(buttonOf(&toggle, 2)->x(), 32);
        addStates(&toggle, {u"d"_s});
        QVERIFY(buttonOf(&toggle, 3)->isVisible());
    }

    void mayBeDeletedMeanwhile()
    {
        auto *toggle = new oVIXToggle;
        addStates(toggle);
        toggle->setState(u"b"_s);
        delete toggle;
    }

    void isAGroupOfRadioButtons()
    {
        oVIXToggle toggle;
        addStates(&toggle);
        toggle.setStateToolTip(u"b"_s, u"tip"_s);
        QAccessibleInterface *group = QAccessible::queryAccessibleInterface(&toggle);
        QCOMPARE(group->role(), QAccessible::Grouping);
        QCOMPARE(group->childCount(), 3);
        QAccessibleInterface *state = group->child(1);
        QCOMPARE(state->role(), QAccessible::RadioButton);
        QCOMPARE(state->text(QAccessible::Name), u"b"_s);
        QCOMPARE(state->text(QAccessible::Description), u"tip"_s);
        QCOMPARE(group->indexOfChild(state), 1);
        QVERIFY(state->state().checkable && !state->state().checked);
        QVERIFY(Assistive::act(state->object()));
        QVERIFY(state->state().checked);
        QVERIFY(!group->child(3));
    }
};

VELMO_TEST_MAIN(ToggleTest)
#include "ToggleTest.moc"
