#include "support/Gestures.h"
#include "support/OwnSettings.h"
#include "support/TestCase.h"

#include "VelmoAboutDialog.h"
#include "VelmoCurtainWidget.h"
#include "VelmoFeedbackConsentDialog.h"
#include "oVIXGuideOverlay.h"
#include "onboarding/WidgetStep.h"
#include "panels/CrowdEditor.h"
#include "panels/ParametersPanel.h"
#include "scenes/ShippedProjects.h"
#include "start/StartScreen.h"
#include "window/WorkstationWindow.h"

#include <QAbstractAnimation>
#include <QCheckBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class OnboardingTest : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase() { keepSettingsIn(m_folder.path()); }

    void init()
    {
        TestCase::init();
        QCoreApplication::setOrganizationName(u"Test"_s);
        m_settings = std::make_unique<QSettings>();
        m_settings->clear();
        openWindow();
    }
    void cleanup()
    {
        m_window.reset();
        m_settings.reset();
        QCoreApplication::setOrganizationName(QString());
        TestCase::cleanup();
    }

    void asksAndToursUntilToldNotTo()
    {
        QVERIFY(!tour() && !m_window->findChild<QDialog *>()); // nothing by itself
        // The sheet of the three options has one brace too many.
        for (int option = 0; option < 3; ++option)
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression(u"^Could not parse stylesheet of object QRadioButton"_s));
        m_window->beginOnboarding();
        const auto *dialog = m_window->findChild<VelmoFeedbackConsentDialog *>();
        QVERIFY(dialog && dialog->isVisible() && !tour());
        dialog->findChildren<QRadioButton *>().at(1)->click(); // yes
        dialog->findChild<QPushButton *>(u"okButton"_s)->click();
        QTRY_VERIFY(tour());
        tour()->findChild<QPushButton *>(u"skipButton"_s)->click();
        QTRY_VERIFY(!tour());

        m_window->beginOnboarding(); // skipped, but not for good
        QVERIFY(!m_window->findChild<VelmoFeedbackConsentDialog *>());
        QVERIFY(tour() && tour()->isVisible());
        tour()->findChild<QCheckBox *>()->setChecked(true);
        while (title() != u"Menus"_s)
            next();
        next();
        QTRY_VERIFY(!tour());

        openWindow();
        m_window->beginOnboarding();
        QVERIFY(!tour());
        action(u"Guided tour"_s)->trigger();
        QVERIFY(tour());
    }

    void everyStepPointsAtAWidget_data()
    {
        QTest::addColumn<bool>("ofScene");
        QTest::addColumn<int>("steps");
        QTest::newRow("start screen") << false << 4;
        QTest::newRow("scene") << true << 5;
    }
    void everyStepPointsAtAWidget()
    {
        QFETCH(bool, ofScene);
        QFETCH(int, steps);
        if (ofScene) {
            m_window->startScreen()->openSelectedScene();
            QTRY_VERIFY(m_window->showsScene());
        }
        action(u"Guided tour"_s)->trigger();
        action(u"Guided tour"_s)->trigger(); // while there is one: nothing
        QCOMPARE(m_window->findChildren<oVIXGuideOverlay *>().size(), 1);
        QCOMPARE(tour()->size(), m_window->size());
        for (int step = 0; step < steps; ++step, next()) {
            QVERIFY2(tour(), qPrintable(QString::number(step)));
            QVERIFY2((spotSize() > 1000) == (ofScene || step > 0), qPrintable(title()));
        }
        QTRY_VERIFY(!tour());
    }

    void aTourEndsWithItsPage()
    {
        action(u"Guided tour"_s)->trigger();
        m_window->startScreen()->openSelectedScene();
        QTRY_VERIFY(m_window->showsScene() && !tour());
        action(u"Guided tour"_s)->trigger();
        QCOMPARE(title(), u"The scene"_s);
        m_window->closeScene();
        QTRY_VERIFY(!tour());
        action(u"Guided tour"_s)->trigger(); // and the window goes meanwhile
    }

    void aStepWithoutItsWidgetIsDark()
    {
        QWidget window;
        window.resize(400, 300);
        auto *target = new QWidget(&window);
        target->setGeometry(20, 30, 100, 50);
        QPointer<QWidget> found = target;
        WidgetStep step(u"a"_s, u"b"_s, [&found] { return found.data(); });
        QWidget overlay(&window);
        overlay.resize(window.size());
        Gestures::show(&window);
        const auto isLit = [&] {
            QImage picture(overlay.size(), QImage::Format_ARGB32_Premultiplied);
            picture.fill(Qt::transparent);
            QPainter painter(&picture);
            step.paintStep(&painter, &overlay);
            return qAlpha(picture.pixel(70, 55)) == 0 && qAlpha(picture.pixel(300, 200)) > 0;
        };
        QVERIFY(isLit());
        target->hide();
        QVERIFY(!isLit());
        target->show();
        QVERIFY(isLit());
        target->setParent(nullptr); // a window of its own, like a panel that floats
        target->show();
        QVERIFY(!isLit());
        delete target;
        QVERIFY(!isLit());
    }

    void theHelpMenuTellsAboutTheApplication()
    {
        action(u"About"_s)->trigger();
        const QPointer<VelmoAboutDialog> dialog = m_window->findChild<VelmoAboutDialog *>();
        QTRY_VERIFY(dialog && dialog->isVisible());
        QTest::keyClick(dialog.data(), Qt::Key_Escape);
        QTRY_VERIFY(!dialog);
    }

    void parametersAreInSections()
    {
        m_window->startScreen()->openSelectedScene();
        QTRY_VERIFY(m_window->showsScene());
        const auto curtains = m_window->parametersPanel()->findChildren<VelmoCurtainWidget *>();
        QCOMPARE(curtains.size(), 2);
        const QWidget *crowd = m_window->parametersPanel()->crowd();
        QVERIFY(crowd->isVisible());
        curtains[1]->setExpanded(false);
        QVERIFY(!crowd->isVisible() && curtains[0]->isExpanded());
    }

private:
    void openWindow()
    {
        m_window = std::make_unique<WorkstationWindow>(ShippedProjects::folder(), m_settings.get());
        Gestures::show(m_window.get());
        QTRY_VERIFY(!m_window->startScreen()->isReading());
    }

    oVIXGuideOverlay *tour() const { return m_window->findChild<oVIXGuideOverlay *>(); }
    QString title() const { return tour()->findChild<QLabel *>(u"titleLabel"_s)->text(); }

    /// How many pixels of the window the current step leaves bright.
    int spotSize() const
    {
        for (QAbstractAnimation *transition : tour()->findChildren<QAbstractAnimation *>())
            transition->stop();
        tour()->setAnimationProgress(1.0F);
        QImage picture(tour()->size(), QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        tour()->render(&picture, QPoint(), QRegion(), QWidget::RenderFlags()); // without the texts
        int size = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                size += qAlpha(picture.pixel(x, y)) == 0 ? 1 : 0;
        }
        return size;
    }

    void next()
    {
        tour()->findChild<QPushButton *>(u"nextButton"_s)->click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QAction *action(const QString &text) const
    {
        const QList<QAction *> actions = m_window->findChildren<QAction *>();
        const auto found = std::find_if(actions.cbegin(), actions.cend(), [&](auto *a) { return a->text() == text; });
        return found == actions.cend() ? nullptr : *found;
    }

    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<WorkstationWindow> m_window;
    QTemporaryDir m_folder;
};

VELMO_TEST_MAIN(OnboardingTest)
#include "OnboardingTest.moc"
