#include "desktop/Journey.h"
#include "desktop/RealInput.h"

#include "OvixSvgButton.h"
#include "VelmoMessageBox.h"
#include "VelmoProjectsTable.h"
#include "VelmoScenesTable.h"
#include "oVIXButton.h"
#include "start/StartScreen.h"
#include "window/ScenePage.h"
#include "window/SceneView.h"
#include "window/WorkstationWindow.h"

#include <QMenuBar>
#include <QTest>

using namespace Qt::StringLiterals;

class KeyboardJourney : public Journey
{
    Q_OBJECT

private slots:
    void init()
    {
        Journey::init();
        RealInput::moveTo(QPoint(10, 990)); // beside the window, for good
    }

    void choosesBakesPlaysAndReturns()
    {
        const auto *projects = screen()->findChild<VelmoProjectsTable *>();
        tabInto(projects);
        keep(u"projects"_s);
        for (int i = 0; i < 3; ++i)
            RealInput::key(u"Down"_s);
        QTRY_VERIFY(projects->getSelectedProject().endsWith(u"Stadium Egress"_s));
        QTRY_VERIFY(!screen()->isReading());
        tabInto(scenes());
        for (int i = 0; i < 4; ++i)
            RealInput::key(u"Down"_s);
        keep(u"scenes"_s);
        QTRY_COMPARE(scenes()->getSelectedScene(), u"Steward briefing"_s);
        RealInput::key(u"ctrl+o"_s);
        QTRY_VERIFY(window()->showsScene());

        tabInto(seen<oVIXButton>(u"Bake"_s));
        keep(u"on-bake"_s);
        RealInput::key(u"space"_s);
        QTRY_VERIFY(!bake().isRunning() && bake().computedFrames() == 750);
        tabInto(seen<OvixSvgButton>(u"Play"_s));
        keep(u"on-play"_s);
        RealInput::key(u"space"_s);
        QTRY_VERIFY(page()->isPlaying());
        RealInput::key(u"space"_s);
        QTRY_VERIFY(!page()->isPlaying());

        onceOpen<VelmoMessageWidget>([](VelmoMessageWidget *) { RealInput::key(u"Return"_s); });
        RealInput::key(u"ctrl+w"_s); // and yes, save it
        QTRY_VERIFY(!window()->showsScene());
        keep(u"returned"_s);
        QVERIFY(QApplication::focusWidget());
        QVERIFY2(screen()->isAncestorOf(QApplication::focusWidget()),
                 QApplication::focusWidget()->metaObject()->className());
        RealInput::key(u"ctrl+o"_s); // and so on
        QTRY_VERIFY(window()->showsScene());
    }

    void usesTheMenus()
    {
        RealInput::key(u"Alt_L"_s);
        RealInput::key(u"Down"_s);
        QTRY_VERIFY(QApplication::activePopupWidget());
        keep(u"menu"_s);
        RealInput::key(u"Return"_s);
        QTRY_VERIFY(window()->showsScene());
    }

private:
    StartScreen *screen() const { return window()->startScreen(); }
    VelmoScenesTable *scenes() const { return screen()->findChild<VelmoScenesTable *>(); }
    ScenePage *page() const { return window()->scenePage(); }
    const Bake &bake() const { return page()->bake(); }

    /// Presses Tab until the keyboard is in @p part.
    void tabInto(const QWidget *part)
    {
        constexpr int farTooMany = 60;
        QStringList passed;
        for (int i = 0; i < farTooMany; ++i) {
            QWidget *focus = QApplication::focusWidget();
            if (focus && (focus == part || part->isAncestorOf(focus)))
                return;
            passed << (focus ? QString::fromLatin1(focus->metaObject()->className()) + u' ' + nameOf(focus)
                             : u"none"_s);
            RealInput::key(u"Tab"_s);
        }
        QFAIL(qPrintable(passed.join(u"; "_s)));
    }
};

VELMO_TEST_MAIN(KeyboardJourney)
#include "KeyboardJourney.moc"
