#include "support/Gestures.h"
#include "support/Picture.h"
#include "support/TestCase.h"

#include "messages/GuideRules.h"
#include "messages/oVIXGuideOverlay.h"

#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QPainter>
#include <QPropertyAnimation>
#include <QProxyStyle>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <limits>

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

    QPushButton *button(const char *name) const { return overlay->findChild<QPushButton *>(QString::fromLatin1(name)); }
    QString text(const char *name) const { return overlay->findChild<QLabel *>(QString::fromLatin1(name))->text(); }
    /// Title, description, count, the Next button, and whether there is a Back button.
    QStringList shown() const
    {
        return {text("titleLabel"), text("descriptionLabel"), text("counterLabel"), button("nextButton")->text(),
                QString::number(button("backButton")->isVisibleTo(overlay))};
    }
    qsizetype running() const
    {
        const auto transitions = overlay->findChildren<QPropertyAnimation *>();
        return std::count_if(transitions.cbegin(), transitions.cend(),
                             [](auto *transition) { return transition->state() == QAbstractAnimation::Running; });
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
        QCOMPARE(revealedRadius({800, 600}, 1.0F), 500);
        QCOMPARE(revealedRadius({801, 601}, 0.5F), 250);
        QCOMPARE(revealedRadius({800, 600}, 0.0199F), 9);
        QCOMPARE(revealedRadius({800, 600}, -1.0F), 0);
        QVERIFY(revealedRadius({800, 600}, std::numeric_limits<float>::max()) > 500);

        Tour tour(1);
        const auto isRed = [&](QPoint point) { return Picture::colourAt(tour.overlay, point) == QColor(Qt::red); };
        QVERIFY(!isRed({400, 300}));
        tour.overlay->setAnimationProgress(0.5F);
        QVERIFY(isRed({152, 300}) && isRed({400, 60}));
        QCOMPARE(Picture::colourAt(tour.overlay, {148, 300}).alpha(), 0);
        tour.overlay->setAnimationProgress(1.0F);
        QVERIFY(isRed({2, 2}) && isRed({797, 597}));
    }

    void keepsItsProgress()
    {
        Tour tour(1);
        QSignalSpy changes(tour.overlay, &oVIXGuideOverlay::sgAnimationProgressChanged);
        tour.overlay->setProperty("mAnimationProgress", 0.5F);
        tour.overlay->setAnimationProgress(0.500001F);
        tour.overlay->setAnimationProgress(std::numeric_limits<float>::quiet_NaN());
        QCOMPARE(tour.overlay->getAnimationProgress(), 0.5F);
        QCOMPARE(changes.size(), 1);
    }

    void leadsThroughItsSteps()
    {
        Tour tour(3);
        Gestures::show(&tour.window);
        QCOMPARE(tour.shown(), QStringList({u"One"_s, u"About One"_s, u"1 of 3"_s, u"Next"_s, u"0"_s}));
        const int place = tour.button("nextButton")->x();
        Gestures::click(tour.button("nextButton"));
        QCOMPARE(tour.shown(), QStringList({u"Two"_s, u"About Two"_s, u"2 of 3"_s, u"Next"_s, u"1"_s}));
        QVERIFY(qAbs(tour.button("nextButton")->x() - place) < 5); // the count is not always as wide
        Gestures::click(tour.button("nextButton"));
        QCOMPARE(tour.shown().mid(2), QStringList({u"3 of 3"_s, u"Finish"_s, u"1"_s}));
        QCOMPARE(tour.finished->size(), 0);
        Gestures::click(tour.button("nextButton"));
        QCOMPARE(tour.finished->size(), 1);
        QCOMPARE(tour.text("titleLabel"), u"Three"_s);
        Gestures::click(tour.button("backButton"));
        QCOMPARE(tour.text("counterLabel"), u"2 of 3"_s);
        Gestures::click(tour.button("skipButton"));
        QCOMPARE(tour.finished->size(), 2);
        QVERIFY(tour.overlay->isVisible());

        auto *box = tour.overlay->findChild<QCheckBox *>();
        QVERIFY(!tour.overlay->isDontShowChecked());
        box->click();
        QVERIFY(tour.overlay->isDontShowChecked());
    }

    void managesWithoutSteps()
    {
        Tour tour(0);
        tour.overlay->addStep(nullptr);
        QCOMPARE(tour.shown(), QStringList({QString(), QString(), u"1 of 0"_s, u"Next"_s, u"0"_s}));
        QCOMPARE(Picture::colourAt(tour.overlay, {5, 5}).alpha(), 0);
        tour.button("nextButton")->click();
        QCOMPARE(tour.finished->size(), 1);
        tour.overlay->addStep(&tour.steps[0]);
        QCOMPARE(tour.shown().mid(2), QStringList({u"1 of 1"_s, u"Finish"_s, u"0"_s}));
    }

    void revealsOneStepAtATime()
    {
        Tour tour(3);
        Gestures::show(&tour.window);
        QMetaObject::invokeMethod(tour.overlay, "onBackClicked");
        QCOMPARE(tour.running(), 0);
        tour.overlay->setAnimationProgress(1.0F);
        tour.button("nextButton")->click();
        QCOMPARE(tour.running(), 1);
        QCOMPARE(tour.overlay->getAnimationProgress(), 0.0F);
        QTRY_VERIFY(tour.overlay->getAnimationProgress() > 0.05F);
        tour.button("nextButton")->click();
        QCOMPARE(tour.running(), 1);
        QCOMPARE(tour.overlay->getAnimationProgress(), 0.0F);
        QTRY_COMPARE(tour.overlay->getAnimationProgress(), 1.0F);
        QTRY_VERIFY(tour.overlay->findChildren<QPropertyAnimation *>().isEmpty());

        tour.button("backButton")->click();
        tour.overlay->hide();
        QCOMPARE(tour.running(), 0);
        QCOMPARE(tour.overlay->getAnimationProgress(), 1.0F);
    }

    void appearsAtOnceWhereNothingMoves()
    {
        StillStyle style;
        Tour tour(2);
        tour.overlay->setStyle(&style);
        QSignalSpy changes(tour.overlay, &oVIXGuideOverlay::sgAnimationProgressChanged);
        tour.button("nextButton")->click();
        QCOMPARE(tour.running(), 0);
        QCOMPARE(changes.size(), 1);
        QCOMPARE(tour.overlay->getAnimationProgress(), 1.0F);
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
        QCOMPARE(tour.overlay->size(), QSize(820, 500));
        tour.window.resize(1000, 700);
        QCOMPARE(tour.overlay->size(), QSize(820, 500));
        delete tour.overlay;
    }

    void answersKeys()
    {
        Tour tour(3);
        auto *below = new QPushButton(u"Below"_s, &tour.window);
        Gestures::show(&tour.window);
        Gestures::focus(tour.overlay);
        const auto type = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
            QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        };
        type(Qt::Key_Right);
        type(Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(tour.text("counterLabel"), u"2 of 3"_s);
        type(Qt::Key_Left);
        QCOMPARE(tour.text("counterLabel"), u"1 of 3"_s);
        for (int i = 0; i < 5; ++i) {
            type(i < 3 ? Qt::Key_Tab : Qt::Key_Backtab);
            QVERIFY(QApplication::focusWidget() != below);
            type(Qt::Key_Escape);
            QCOMPARE(tour.finished->size(), i + 1);
        }

        QKeyEvent left(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier);
        QCOMPARE(guideKeyOf(left, Qt::RightToLeft), GuideKey::Next);
    }

    void tellsItsStep()
    {
        Tour tour(2);
        tour.button("nextButton")->click();
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(tour.overlay);
        QCOMPARE(accessible->role(), QAccessible::Dialog);
        QCOMPARE(accessible->text(QAccessible::Name), u"Two"_s);
        QCOMPARE(accessible->text(QAccessible::Description), u"2 of 2\nAbout Two"_s);
    }

    void mayBeDeletedByItsListeners()
    {
        Tour finishing(1);
        connect(finishing.overlay, &oVIXGuideOverlay::sgGuideFinished, this, [&] { delete finishing.overlay; });
        Gestures::show(&finishing.window);
        Gestures::focus(finishing.overlay);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(!finishing.overlay);

        Tour going(2);
        going.overlay->setAnimationProgress(1.0F);
        connect(going.overlay, &oVIXGuideOverlay::sgAnimationProgressChanged, this, [&] { delete going.overlay; });
        going.button("nextButton")->click();
        QVERIFY(!going.overlay);

        Tour closed(1);
        Gestures::show(&closed.window);
        closed.overlay->close();
        QTRY_VERIFY(!closed.overlay);
    }
};

VELMO_TEST_MAIN(GuideTourTest)
#include "GuideTourTest.moc"
