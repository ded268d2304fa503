#include "support/Assistive.h"
#include "support/Events.h"
#include "support/Gestures.h"
#include "support/TestCase.h"

#include "browser/VelmoCurtainLineWidget.h"
#include "browser/VelmoCurtainWidget.h"
#include "foundation/OvixSvgButton.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

template <class Part = QWidget> Part *part(const QWidget &whole, const char *name)
{
    return whole.findChild<Part *>(QString::fromLatin1(name));
}

OvixSvgButton *arrowOf(const VelmoCurtainWidget &curtain)
{
    return part<OvixSvgButton>(curtain, "curtainArrow");
}

/// A curtain with a box of 100 x 50 in it, on screen.
struct ShownCurtain
{
    ShownCurtain() : curtain(new VelmoCurtainWidget(&window)), box(new QWidget)
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(curtain);
        layout->addStretch();
        box->setFixedSize(100, 50);
        curtain->addToContainerWidget(box);
        window.resize(300, 200);
        Gestures::leave();
        Gestures::show(&window);
        QVERIFY(Events::untilIdle());
    }

    QWidget window;
    VelmoCurtainWidget *curtain;
    QWidget *box;
};

} // namespace

class VelmoCurtainWidgetTest : public TestCase
{
    Q_OBJECT

private slots:
    void isBuiltAsDesigned()
    {
        const VelmoCurtainWidget curtain;
        QCOMPARE(part(curtain, "curtainTitle")->styleSheet(),
                 u"QLabel {\tfont-size:11px;\tcolor:rgb(219,219,219);}QLabel:disabled {\tcolor:rgb(219,219,219);}"_s);
        QCOMPARE(part(curtain, "curtainSubtitle")->styleSheet(),
                 u"QLabel {\tfont-size:11px;\tfont:italic;\tcolor:rgb(156,156,156);}"
                 "QLabel:disabled {\tcolor:rgb(156,156,156);}"_s);
        QCOMPARE(part(curtain, "curtainLine")->styleSheet(),
                 u"#curtainLine {\tbackground:transparent;\tcolor:rgb(39,39,39);}"_s);
    }

    void collapsesAndExpands()
    {
        const ShownCurtain shown;
        const int tall = shown.curtain->height();
        for (const bool expanded : {true, false, true}) {
            QVERIFY(Events::untilIdle());
            QCOMPARE(shown.curtain->isExpanded(), expanded);
            QCOMPARE(arrowOf(*shown.curtain)->firstFilename(),
                     expanded ? u":/Windows/ArrowShow"_s : u":/Windows/ArrowHide"_s);
            QCOMPARE(shown.box->isVisible(), expanded);
            QVERIFY(expanded ? shown.curtain->height() == tall : shown.curtain->height() <= tall - 50);
            Gestures::click(arrowOf(*shown.curtain));
        }
        shown.curtain->setExpanded(false);
        shown.curtain->setExpanded(true);
        QVERIFY(shown.box->isVisible());
        part<VelmoCurtainLineWidget>(*shown.curtain, "curtainLineWidget")->setLineVisible(false);
        QVERIFY(!part(*shown.curtain, "curtainLine")->isVisible());
    }

    void readsAsCollapsedInsideAHiddenParent()
    {
        ShownCurtain shown;
        auto *inner = new VelmoCurtainWidget;
        shown.curtain->addToContainerWidget(inner);
        QTRY_VERIFY(inner->isExpanded());
        shown.curtain->setExpanded(false);
        QVERIFY(!inner->isExpanded() && !part(*inner, "containerWidget")->isHidden());
        QCOMPARE(arrowOf(*inner)->firstFilename(), u":/Windows/ArrowShow"_s);
        shown.curtain->setExpanded(true);
        QVERIFY(inner->isExpanded());
        shown.window.hide();
        QVERIFY(!shown.curtain->isExpanded() && !inner->isExpanded());
    }

    void takesWidgetsInOrder()
    {
        const ShownCurtain shown;
        auto *second = new QLabel(u"second"_s);
        shown.curtain->addToContainerWidget(second);
        QWidget *container = part(*shown.curtain, "containerWidget");
        for (QWidget *refused : {static_cast<QWidget *>(nullptr), static_cast<QWidget *>(shown.curtain), container,
                                 shown.curtain->window()})
            shown.curtain->addToContainerWidget(refused);
        QCOMPARE(container->layout()->count(), 2);
        QCOMPARE(container->layout()->itemAt(1)->widget(), second);
        QCOMPARE(second->parentWidget(), container);
    }

    void keepsLongTextsInItsWidth()
    {
        ShownCurtain shown;
        const QString endless = u"<b>long &amp; "_s.repeated(100);
        shown.curtain->setTitle(endless);
        shown.curtain->setSubtitle(endless);
        QVERIFY(Events::untilIdle());
        QCOMPARE(shown.curtain->getTitle(), endless);
        QCOMPARE(shown.curtain->getSubtitle(), endless);
        QVERIFY(shown.window.minimumSizeHint().width() <= 140);
        const QWidget *subtitle = part(*shown.curtain, "curtainSubtitle");
        QCOMPARE(subtitle->geometry().right(), subtitle->parentWidget()->width() - 3);
    }

    void isUsedWithoutThePointer()
    {
        ShownCurtain shown;
        shown.curtain->setTitle(u"Display"_s);
        shown.curtain->setFocusPolicy(Qt::StrongFocus);
        Gestures::focus(&shown.window);
        shown.curtain->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QVERIFY(!shown.curtain->isExpanded());

        QAccessibleInterface *arrow = QAccessible::queryAccessibleInterface(arrowOf(*shown.curtain));
        QCOMPARE(arrow->role(), QAccessible::Button);
        QCOMPARE(arrow->text(QAccessible::Name), u"Display"_s);
        QVERIFY(arrow->state().expandable && arrow->state().collapsed && !arrow->state().expanded);
        QVERIFY(Assistive::act(arrowOf(*shown.curtain)));
        QVERIFY(shown.curtain->isExpanded());
        QVERIFY(arrow->state().expanded && !arrow->state().collapsed);
    }
};

VELMO_TEST_MAIN(VelmoCurtainWidgetTest)
#include "VelmoCurtainWidgetTest.moc"
