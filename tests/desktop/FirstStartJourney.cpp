#include "desktop/Journey.h"
#include "desktop/RealInput.h"

#include "VelmoFeedbackConsentDialog.h"
#include "oVIXGuideOverlay.h"
#include "start/StartScreen.h"
#include "window/WorkstationWindow.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSettings>
#include <QTest>

using namespace Qt::StringLiterals;

class FirstStartJourney : public Journey
{
    Q_OBJECT

private slots:
    void isAskedAndShownRound()
    {
        begin();
        const auto *consent = consentDialog();
        QVERIFY(!tour());
        keep(u"consent"_s);
        const QList<QRadioButton *> answers = consent->findChildren<QRadioButton *>();
        const auto yes = std::find_if(answers.cbegin(), answers.cend(),
                                      [](const QRadioButton *answer) { return answer->text().startsWith(u"Yes"_s); });
        QVERIFY(yes != answers.cend());
        click(*yes);
        QTRY_VERIFY((*yes)->isChecked());
        click(seen<QPushButton>(u"OK"_s, consent));
        waitForTour();

        QStringList titles;
        while (tour()) {
            waitFor([this] { return tour()->getAnimationProgress() == 1.0F; }, "the whole picture");
            titles << step();
            keep(u"tour-"_s + step().section(u' ', 0, 0));
            if (step() == u"Menus"_s)
                click(tour()->findChild<QCheckBox *>());
            click(tour()->findChild<QPushButton *>(u"nextButton"_s));
        }
        QCOMPARE(titles, QStringList({u"Welcome to Velmo Workstation"_s, u"Projects"_s, u"Scenes"_s, u"Menus"_s}));
        keep(u"after"_s);

        restart();
        QCOMPARE(settings().value(u"Telemetry/Enabled"_s).toInt(), 1);
        begin();
        QVERIFY(!tour() && !QApplication::activeModalWidget());
        chooseFromMenu(u"Help"_s, u"Guided tour"_s); // but whenever it is wanted
        waitForTour();
        RealInput::key(u"Escape"_s);
        QTRY_VERIFY(!tour());
    }

    void goesThroughTheTourByKeys()
    {
        begin();
        consentDialog();
        RealInput::key(u"Up"_s);
        RealInput::key(u"Up"_s);
        keep(u"later"_s);
        RealInput::key(u"Return"_s);
        waitForTour();
        for (const QString &title : {u"Projects"_s, u"Scenes"_s, u"Menus"_s}) {
            RealInput::key(u"Right"_s);
            QTRY_COMPARE(step(), title);
        }
        RealInput::key(u"Left"_s);
        QTRY_COMPARE(step(), u"Scenes"_s);
        RealInput::key(u"Escape"_s);
        QTRY_VERIFY(!tour());

        restart();
        QVERIFY(settings().contains(u"Telemetry/RemenberDate"_s));
        begin(); // not asked again on the same day, but shown round
        QVERIFY(!QApplication::activeModalWidget());
        waitForTour();
        RealInput::key(u"Escape"_s);
        QTRY_VERIFY(!tour());
        RealInput::key(u"ctrl+o"_s); // the keyboard is the start screen's again
        QTRY_VERIFY(window()->showsScene());
    }

private:
    /// As the application does when it starts.
    void begin()
    {
        QTimer::singleShot(0, window(), &WorkstationWindow::beginOnboarding);
        QTest::qWait(100);
    }
    VelmoFeedbackConsentDialog *consentDialog()
    {
        VelmoFeedbackConsentDialog *dialog = nullptr;
        waitFor([&] { return (dialog = window()->findChild<VelmoFeedbackConsentDialog *>()) != nullptr; }, "consent");
        waitFor([&] { return dialog->isActiveWindow(); }, "the consent dialog in front");
        return dialog;
    }
    oVIXGuideOverlay *tour() const { return window()->findChild<oVIXGuideOverlay *>(); }
    void waitForTour()
    {
        waitFor([this] { return tour() && tour()->isVisible() && window()->isActiveWindow(); }, "the tour");
    }
    QString step() const { return tour()->findChild<QLabel *>(u"titleLabel"_s)->text(); }
};

VELMO_TEST_MAIN(FirstStartJourney)
#include "FirstStartJourney.moc"
