#include "desktop/Journey.h"
#include "desktop/RealInput.h"

#include "OvixMovableLabel.h"
#include "OvixSvgButton.h"
#include "VelmoMessageBox.h"
#include "VelmoProjectsTable.h"
#include "VelmoScenesTable.h"
#include "oVIXButton.h"
#include "oVIXDockBar.h"
#include "oVIXDragDropListWidget.h"
#include "oVIXPieChartWidget.h"
#include "oVIXTimebarWidget.h"
#include "panels/LibraryPanel.h"
#include "panels/TagsPanel.h"
#include "scenes/SceneTags.h"
#include "start/StartScreen.h"
#include "window/ScenePage.h"
#include "window/SceneView.h"
#include "window/WorkstationWindow.h"

#include <QAbstractItemModel>
#include <QFile>
#include <QLineEdit>
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
        QTRY_VERIFY(!screen()->isReading());
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

    void editsCropsAndTagsByKeys()
    {
        openByKeys(u"Platform 4 transfer"_s);
        QTRY_COMPARE(tags(), u"luggage,transfer|commuter,staff"_s);

        tabInto(page()->view());
        const QImage before = page()->view()->grab().toImage();
        RealInput::key(u"Left"_s);
        QTRY_VERIFY(page()->view()->grab().toImage() != before);
        keep(u"on-view"_s);
        RealInput::key(u"plus"_s);
        QTRY_VERIFY(page()->view()->options().zoom > 1.0);
        tabInto(seen<OvixSvgButton>(u"Where they come from"_s));
        RealInput::key(u"space"_s);
        QTRY_COMPARE(page()->view()->options().mode, ViewOptions::Mode::Trails);

        auto *pie = seen<oVIXPieChartWidget>(u"Shares of the types"_s);
        tabInto(pie);
        RealInput::key(u"Right"_s);
        RealInput::key(u"space"_s);
        keep(u"on-slice"_s);
        QTRY_VERIFY(pie->model()->index(1, 0).data(Qt::UserRole + 1).toBool());
        QVERIFY(!pie->model()->index(0, 0).data(Qt::UserRole + 1).toBool());

        tabInto(seen<oVIXButton>(u"Bake"_s));
        RealInput::key(u"Return"_s);
        waitFor([this] { return !bake().isRunning() && bake().computedFrames() == 3000; }, "the frames");
        for (int i = 0; i < 3; ++i)
            RealInput::key(u"alt+Right"_s);
        RealInput::key(u"alt+Left"_s);
        QTRY_COMPARE(page()->timebar()->getCurrentPlayValue(), 2);
        RealInput::key(u"ctrl+bracketleft"_s);
        QTRY_COMPARE(page()->scene().cropFirst, 2);
        tabInto(seen<OvixMovableLabel>(u"Crop end"_s));
        RealInput::key(u"Return"_s);
        QTRY_VERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
        RealInput::type(u"1500"_s);
        keep(u"on-marker"_s);
        RealInput::key(u"Return"_s);
        QTRY_VERIFY(page()->scene().cropLast < 2000); // as near as a pixel is
        QTRY_COMPARE(nameOf(QApplication::focusWidget()), u"Crop end"_s);

        tabInto(tagList(u"Assigned"_s));
        keep(u"on-tag"_s);
        RealInput::key(u"Return"_s);
        QTRY_COMPARE(tags(), u"transfer|commuter,luggage,staff"_s);
        tabInto(tagList(u"Available"_s));
        onceOpen<VelmoMessageWidget>([](VelmoMessageWidget *) { RealInput::key(u"Return"_s); });
        RealInput::key(u"Home"_s);
        RealInput::key(u"Delete"_s);
        QTRY_COMPARE(tags(), u"transfer|luggage,staff"_s);
        RealInput::key(u"End"_s);
        RealInput::key(u"space"_s);
        QTRY_VERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
        RealInput::type(u"delayed"_s);
        RealInput::key(u"Return"_s);
        QTRY_COMPARE(tags(), u"transfer|delayed,luggage,staff"_s);

        RealInput::key(u"ctrl+s"_s);
        QTRY_VERIFY(!window()->isWindowModified());
        const QByteArray saved = contentOf(u"Central Station"_s, u"Platform 4 transfer"_s);
        QVERIFY(saved.contains("<crop first=\"2\""));
        QVERIFY(saved.contains("name=\"delayed\""));
        QVERIFY(!saved.contains("name=\"commuter\""));

        tabInto(seen<OvixSvgButton>(u"Close"_s, window()->libraryPanel()->getTitleWidget()));
        keep(u"on-header"_s);
        RealInput::key(u"space"_s);
        QTRY_VERIFY(!window()->libraryPanel()->isVisible());
    }

    void makesRenamesAndDeletesByKeys()
    {
        const QString project = u"Central Station"_s;
        RealInput::key(u"ctrl+n"_s);
        QTRY_VERIFY(QFile::exists(scenePath(project, u"New scene"_s)));
        QTRY_COMPARE(scenes()->getSelectedScene(), u"New scene"_s);
        onceOpen<VelmoMessageWidget>([](VelmoMessageWidget *) {
            RealInput::key(u"ctrl+a"_s);
            RealInput::type(u"Drill"_s);
            RealInput::key(u"Return"_s);
        });
        RealInput::key(u"F2"_s);
        QTRY_VERIFY(QFile::exists(scenePath(project, u"Drill"_s)));
        QVERIFY(!QFile::exists(scenePath(project, u"New scene"_s)));
        QTRY_COMPARE(scenes()->getSelectedScene(), u"Drill"_s);
        keep(u"renamed"_s);
        onceOpen<VelmoMessageWidget>([](VelmoMessageWidget *) { RealInput::key(u"Return"_s); });
        RealInput::key(u"Delete"_s);
        QTRY_VERIFY(!QFile::exists(scenePath(project, u"Drill"_s)));
        QCOMPARE(trash(), QStringList(u"Drill.vscene"_s));
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

    oVIXDragDropListWidget *tagList(const QString &name)
    {
        return seen<oVIXDragDropListWidget>(name, window()->tagsPanel());
    }
    /// The scene's tags: assigned ones, then those that are available.
    QString tags() const
    {
        const auto sorted = [](QStringList names) {
            names.sort();
            return names.join(u',');
        };
        const Scene &scene = page()->scene();
        return sorted(SceneTags::assigned(scene)) + u'|' + sorted(SceneTags::available(scene));
    }
    QByteArray contentOf(const QString &project, const QString &scene) const
    {
        QFile file(scenePath(project, scene));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// Opens a scene of the project that is shown.
    void openByKeys(const QString &name)
    {
        tabInto(scenes());
        RealInput::key(u"Home"_s);
        for (int i = 0; i < 10 && scenes()->getSelectedScene() != name; ++i)
            RealInput::key(u"Down"_s);
        RealInput::key(u"ctrl+o"_s);
        waitFor([this] { return window()->showsScene() && !window()->isLoading(); }, "the scene");
    }

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
