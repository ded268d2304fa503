#include "support/Gestures.h"
#include "support/Picture.h"
#include "support/TestCase.h"

#include "frame/NativeWindowApi.h"
#include "messages/GuideRules.h"
#include "messages/oVIXGuideOverlay.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QPainter>
#include <QPropertyAnimation>
#include <QProxyStyle>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Step : oVIXGuideStep
{
    explicit Step(const QString &title) : oVIXGuideStep(title, u"About "_s + title) { }
    void paintStep(QPainter *painter, QWidget *overlay) override { painter->fillRect(overlay->rect(), Qt::red); }
};

/// A tour over a window of 800 x 600.
struct Tour
{
    explicit Tour(int count)
    {
        window.resize(800, 600);
        overlay = new oVIXGuideOverlay(&window);
        for (int i = 0; i < count; ++i)
            overlay->addStep(&steps[i]);
        finished = std::make_unique<QSignalSpy>(overlay, &oVIXGuideOverlay::sgGuideFinished);
    }

    QAbstractButton *button(const char *name) const
    {
        return overlay->findChild<QAbstractButton *>(QString::fromLatin1(name));
    }
    /// Title, description, count, the Next button, and the Back button when there is one.
    QString shown() const
    {
        QStringList texts;
        for (const auto *part : {"titleLabel", "descriptionLabel", "counterLabel", "nextButton", "backButton"}) {
            const auto *widget = overlay->findChild<QWidget *>(QString::fromLatin1(part));
            if (widget->isVisibleTo(overlay))
                texts << widget->property("text").toString();
        }
        return texts.join(u", "_s);
    }
    qsizetype transitions() const
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return overlay->findChildren<QPropertyAnimation *>().size();
    }

    QWidget window;
    Step steps[3] = {Step(u"One"_s), Step(u"Two"_s), Step(u"Three"_s)};
    QPointer<oVIXGuideOverlay> overlay;
    std::unique_ptr<QSignalSpy> finished;
};

struct StillStyle : QProxyStyle
{
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override
    {
        return hint == SH_Widget_Animation_Duration ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

} // namespace

class GuideTourTest : public TestCase
{
    Q_OBJECT

private slots:
    void revealsACircle()
    {
        QCOMPARE(revealedRadius({801, 601}, 0.5F), 250);
        QCOMPARE(revealedRadius({800, 600}, 0.0199F), 9);
        QCOMPARE(revealedRadius({800, 600}, -1.0F), 0);
        QVERIFY(revealedRadius({800, 600}, 3e38F) > 500);

        Tour tour(1);
        QSignalSpy changes(tour.overlay, &oVIXGuideOverlay::sgAnimationProgressChanged);
        const auto isRed = [&](QPoint point) { return Picture::colourAt(tour.overlay, point) == QColor(Qt::red); };
        QVERIFY(!isRed({400, 300}));
        tour.overlay->setProperty("mAnimationProgress", 0.5F);
        tour.overlay->setAnimationProgress(0.500001F);
        tour.overlay->setAnimationProgress(float(qQNaN()));
        QCOMPARE(tour.overlay->getAnimationProgress(), 0.5F);
        QCOMPARE(changes.size(), 1);
        QVERIFY(isRed({152, 300}) && isRed({400, 60}));
        QCOMPARE(Picture::colourAt(tour.overlay, {148, 300}).alpha(), 0);
        tour.overlay->setAnimationProgress(1.0F);
        QVERIFY(isRed({2, 2}) && isRed({797, 597}));
    }

    void leadsThroughItsSteps()
    {
        Tour tour(3);
        Gestures::show(&tour.window);
        QCOMPARE(tour.shown(), u"One, About One, 1 of 3, Next"_s);
        const int place = tour.button("nextButton")->x();
        Gestures::click(tour.button("nextButton"));
        QVERIFY(qAbs(tour.button("nextButton")->x() - place) < 5); // the count is not always as wide
        Gestures::click(tour.button("nextButton"));
        QCOMPARE(tour.finished->size(), 0);
        Gestures::click(tour.button("nextButton"));
        QCOMPARE(tour.finished->size(), 1);
        QCOMPARE(tour.shown(), u"Three, About Three, 3 of 3, Finish, Back"_s);
        Gestures::click(tour.button("backButton"));
        Gestures::click(tour.button("skipButton"));
        QCOMPARE(tour.finished->size(), 2);
        QCOMPARE(tour.shown(), u"Two, About Two, 2 of 3, Next, Back"_s);

        QVERIFY(!tour.overlay->isDontShowChecked());
        Gestures::click(tour.button("dontShowCheckBox"));
        QVERIFY(tour.overlay->isDontShowChecked());

        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(tour.overlay);
        QCOMPARE(accessible->role(), QAccessible::Dialog);
        QCOMPARE(accessible->text(QAccessible::Name), u"Two"_s);
        QCOMPARE(accessible->text(QAccessible::Description), u"2 of 3\nAbout Two"_s);
    }

    void managesWithoutSteps()
    {
        Tour tour(0);
        tour.overlay->addStep(nullptr);
        QCOMPARE(tour.shown(), u", , 1 of 0, Next"_s);
        QCOMPARE(Picture::colourAt(tour.overlay, {5, 5}).alpha(), 0);
        tour.button("nextButton")->click();
        QCOMPARE(tour.finished->size(), 1);
        tour.overlay->addStep(&tour.steps[0]);
        QCOMPARE(tour.shown(), u"One, About One, 1 of 1, Finish"_s);
    }

    void revealsOneStepAtATime()
    {
        Tour tour(3);
        Gestures::show(&tour.window);
        tour.button("backButton")->click();
        QCOMPARE(tour.transitions(), 0);
        tour.overlay->setAnimationProgress(1.0F);
        for (int step = 0; step < 2; ++step) {
            tour.button("nextButton")->click();
            QCOMPARE(tour.transitions(), 1);
            QCOMPARE(tour.overlay->getAnimationProgress(), 0.0F);
            QTRY_VERIFY(tour.overlay->getAnimationProgress() > 0.05F);
        }
        QTRY_COMPARE(tour.overlay->getAnimationProgress(), 1.0F);
        QTRY_COMPARE(tour.transitions(), 0);

        tour.button("backButton")->click();
        tour.overlay->hide();
        QCOMPARE(tour.transitions(), 0);
        QCOMPARE(tour.overlay->getAnimationProgress(), 1.0F);
    }

    void appearsAtOnceWhereNothingMoves()
    {
        NativeWindowApi &native = NativeWindowApi::instance();
        const auto restore = qScopeGuard([&native, before = native] { native = before; });
        StillStyle still;
        for (const bool byStyle : {false, true}) {
            native.areAnimationsOn = [byStyle] { return byStyle; };
            Tour tour(2);
            if (byStyle)
                tour.overlay->setStyle(&still);
            QSignalSpy changes(tour.overlay, &oVIXGuideOverlay::sgAnimationProgressChanged);
            tour.button("nextButton")->click();
            QCOMPARE(tour.transitions(), 0);
            QCOMPARE(changes, QList<QVariantList>{{1.0F}});
        }
    }

    void coversItsParent()
    {
        Tour tour(1);
        QCOMPARE(tour.overlay->geometry(), QRect(0, 0, 800, 600));
        tour.window.resize(900, 700);
        Gestures::show(&tour.window);
        QCOMPARE(tour.overlay->size(), QSize(900, 700));
        auto *block = tour.overlay->findChild<QWidget *>(u"controlsContainer"_s);
        QCOMPARE(block->size(), QSize(800, 400));
        QVERIFY((block->geometry().center() - QPoint(449, 349)).manhattanLength() <= 1);

        QWidget other;
        other.resize(820, 500);
        tour.overlay->setParent(&other);
        tour.window.resize(1000, 700);
        QCOMPARE(tour.overlay->size(), QSize(820, 500));
        tour.overlay->close();
        QTRY_VERIFY(!tour.overlay);
    }

    void answersKeys()
    {
        Tour tour(3);
        auto *below = new QWidget(&tour.window);
        below->setFocusPolicy(Qt::StrongFocus);
        Gestures::show(&tour.window);
        Gestures::focus(tour.overlay);
        const auto type = [](int key) { QTest::keyClick(QApplication::focusWidget(), Qt::Key(key)); };
        type(Qt::Key_Right);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(tour.shown(), u"Two, About Two, 2 of 3, Next, Back"_s);
        type(Qt::Key_Left);
        QCOMPARE(tour.shown(), u"One, About One, 1 of 3, Next"_s);
        for (int i = 0; i < 5; ++i) {
            type(i < 3 ? Qt::Key_Tab : Qt::Key_Backtab);
            QVERIFY(QApplication::focusWidget() != below);
            type(Qt::Key_Escape);
            QCOMPARE(tour.finished->size(), i + 1);
        }

        QKeyEvent left(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier);
        QCOMPARE(guideKeyOf(left, Qt::RightToLeft), GuideKey::Next);
    }

    void showsWhereTheKeyboardIs()
    {
        Tour tour(2);
        Gestures::show(&tour.window);
        Gestures::focus(tour.overlay);
        for (QAbstractButton *control : tour.overlay->findChildren<QAbstractButton *>()) {
            const auto isRinged = [control] {
                return Picture::colourAt(control, {control->width() / 2, 0}) == QColor(116, 211, 252);
            };
            if (!control->isVisible())
                continue;
            control->setFocus();
            QVERIFY2(isRinged(), qPrintable(control->objectName()));
            control->clearFocus();
            QVERIFY2(!isRinged(), qPrintable(control->objectName()));
        }
    }

    void mayBeDeletedByItsListeners()
    {
        for (const auto key : {Qt::Key_Escape, Qt::Key_Right}) {
            Tour tour(2);
            tour.overlay->setAnimationProgress(1.0F);
            const auto remove = [&] { delete tour.overlay; };
            connect(tour.overlay, &oVIXGuideOverlay::sgGuideFinished, this, remove);
            connect(tour.overlay, &oVIXGuideOverlay::sgAnimationProgressChanged, this, remove);
            QTest::keyClick(tour.button("nextButton"), key);
            QVERIFY(!tour.overlay);
        }
    }
};

VELMO_TEST_MAIN(GuideTourTest)
#include "GuideTourTest.moc"
