#include "desktop/Journey.h"
#include "desktop/RealInput.h"
#include "support/Files.h"

#include "OvixSvgButton.h"
#include "VelmoMessageBox.h"
#include "VelmoSceneItem.h"
#include "oVIXButton.h"
#include "oVIXDragDropListWidget.h"
#include "oVIXDragTag.h"
#include "oVIXSliderWidget.h"
#include "panels/TagsPanel.h"
#include "scenes/SceneTags.h"
#include "start/StartScreen.h"
#include "window/ScenePage.h"
#include "window/WorkstationWindow.h"

#include <QLabel>
#include <QMenuBar>
#include <QSpinBox>
#include <QTest>

using namespace Qt::StringLiterals;

class SavingJourney : public Journey
{
    Q_OBJECT

private slots:
    void editsAreSavedAndShown()
    {
        openScene(project, u"Family section"_s);
        const auto *people = seen<oVIXSliderWidget>(u"People"_s);
        click(seen<QSpinBox>(u"People"_s, people));
        RealInput::key(u"ctrl+a"_s);
        RealInput::type(u"20"_s);
        RealInput::key(u"ctrl+s"_s); // in the middle of typing
        QTRY_VERIFY(contentOf(u"Family section"_s).contains("actorcount=\"20\""));
        QTRY_VERIFY(!window()->isWindowModified());

        const auto *available = seen<oVIXDragDropListWidget>(u"Available"_s);
        RealInput::drag(middleOf(seen<oVIXDragTag>(u"home"_s)), middleOf(available->viewport()));
        QTRY_VERIFY(SceneTags::available(page()->scene()).contains(u"home"_s));
        QVERIFY(window()->isWindowModified() && seen<QLabel>(u"Not saved"_s));
        keep(u"not-saved"_s);
        chooseFromMenu(u"Scene"_s, u"Save"_s);
        QTRY_VERIFY(!window()->isWindowModified());
        QVERIFY(!seenNow<QLabel>(u"Not saved"_s));
        keep(u"saved"_s);

        RealInput::key(u"ctrl+w"_s); // without a question
        QTRY_VERIFY(!window()->showsScene() && !window()->startScreen()->isReading());
        QVERIFY(seen<QLabel>(u"20"_s, seen<VelmoSceneItem>(u"Family section"_s)));
        keep(u"listed"_s);
        openScene(project, u"Family section"_s);
        QCOMPARE(seen<QSpinBox>(u"People"_s)->value(), 20);
        QVERIFY(SceneTags::available(page()->scene()).contains(u"home"_s));
    }

    void asksBeforeItForgets()
    {
        const QByteArray before = contentOf(u"Family section"_s);
        openScene(project, u"Family section"_s);
        enter(seen<QSpinBox>(u"People"_s), u"30"_s);
        QTRY_VERIFY(window()->isWindowModified());
        onceOpen<VelmoMessageWidget>([this](VelmoMessageWidget *) {
            keep(u"question"_s);
            RealInput::key(u"Escape"_s);
        });
        chooseFromMenu(u"Scene"_s, u"Back to projects"_s);
        QVERIFY(window()->showsScene() && window()->isWindowModified());
        onceOpen<VelmoMessageWidget>(
            [this](VelmoMessageWidget *box) { click(box->findChild<QWidget *>(u"lbDont"_s)); });
        RealInput::key(u"ctrl+w"_s);
        QTRY_VERIFY(!window()->showsScene());
        QCOMPARE(contentOf(u"Family section"_s), before);
    }

    void closingWhileItBakesLosesNothing()
    {
        openScene(project, u"Full time, all gates"_s);
        click(seen<oVIXButton>(u"Bake"_s));
        QTRY_VERIFY(bake().computedFrames() > 20);
        const auto *close = seen<OvixSvgButton>(u"Close"_s, window()->menuBar());
        onceOpen<VelmoMessageWidget>([this](VelmoMessageWidget *) {
            keep(u"question"_s);
            RealInput::key(u"Escape"_s);
        });
        click(close);
        QVERIFY(window()->isVisible() && bake().isRunning());
        const int computed = bake().computedFrames();
        QTRY_VERIFY(bake().computedFrames() > computed);

        onceOpen<VelmoMessageWidget>(
            [this](VelmoMessageWidget *box) { click(box->findChild<QWidget *>(u"okButton"_s)); });
        click(close);
        QTRY_VERIFY(!window()->isVisible());
        QVERIFY(!bake().isRunning());
        const QByteArray content = contentOf(u"Full time, all gates"_s);
        QVERIFY(content.contains("bakestatus=\"Partial\"") && content.contains("actorcount=\"820\""));
        restart();
        openScene(project, u"Full time, all gates"_s);
        QCOMPARE(page()->scene().people.size(), 820);
        QVERIFY(!window()->isWindowModified());
    }

private:
    const QString project = u"Stadium Egress"_s;

    ScenePage *page() const { return window()->scenePage(); }
    const Bake &bake() const { return page()->bake(); }
    QByteArray contentOf(const QString &scene) const { return Files::read(scenePath(project, scene)); }
};

VELMO_TEST_MAIN(SavingJourney)
#include "SavingJourney.moc"
