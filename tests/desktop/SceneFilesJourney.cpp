#include "desktop/Journey.h"
#include "desktop/RealInput.h"
#include "support/Files.h"

#include "OvixSvgButton.h"
#include "VelmoMessageBox.h"
#include "VelmoProjectItem.h"
#include "VelmoSceneItem.h"
#include "VelmoScenesTable.h"
#include "start/StartScreen.h"
#include "window/WorkstationWindow.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

using namespace Qt::StringLiterals;

class SceneFilesJourney : public Journey
{
    Q_OBJECT

private slots:
    void init()
    {
        Journey::init();
        click(seen<VelmoProjectItem>(project));
        click(seen<VelmoSceneItem>(u"Market morning"_s));
    }

    void renamesARowInPlace()
    {
        const QByteArray content = contentOf(u"Market morning"_s);
        const VelmoSceneItem *row = seen<VelmoSceneItem>(u"Market morning"_s);
        RealInput::doubleClick(middleOf(row->findChild<QLabel *>(u"nameLabel"_s)));
        QTRY_VERIFY(row->findChild<QLineEdit *>()->hasFocus());
        RealInput::type(u"Fish & chips"_s);
        keep(u"typing"_s);
        RealInput::key(u"Return"_s);
        QTRY_VERIFY(exists(u"Fish & chips"_s));
        QVERIFY(!exists(u"Market morning"_s));
        QCOMPARE(contentOf(u"Fish & chips"_s), content);
        QTRY_COMPARE(table()->getSelectedScene(), u"Fish & chips"_s);
        keep(u"renamed"_s);

        RealInput::doubleClick(middleOf(row->findChild<QLabel *>(u"nameLabel"_s)));
        QTRY_VERIFY(row->findChild<QLineEdit *>()->hasFocus());
        RealInput::type(u"nothing"_s);
        RealInput::key(u"Escape"_s);
        QTRY_VERIFY(!row->findChild<QLineEdit *>()->isVisible());
        QVERIFY(exists(u"Fish & chips"_s) && !exists(u"nothing"_s));
    }

    void renamesInABox()
    {
        onceOpen<VelmoMessageWidget>([this](VelmoMessageWidget *box) {
            QCOMPARE(box->geometry().center(), window()->geometry().center());
            QVERIFY(box->findChild<QLineEdit *>(u"lnEdit"_s)->hasFocus());
            RealInput::key(u"ctrl+a"_s);
            RealInput::type(u"Evening market"_s);
            keep(u"box"_s);
            RealInput::key(u"Return"_s);
        });
        RealInput::key(u"F2"_s);
        QTRY_VERIFY(exists(u"Evening market"_s));
        QVERIFY(!exists(u"Market morning"_s));

        // A name that another scene has is refused, and why is told.
        onceOpen<VelmoMessageWidget>([this](VelmoMessageWidget *) {
            onceOpen<VelmoMessageWidget>([this](VelmoMessageWidget *) {
                keep(u"refused"_s);
                RealInput::key(u"Return"_s);
            });
            RealInput::key(u"ctrl+a"_s);
            RealInput::type(u"ferry arrival"_s);
            RealInput::key(u"Return"_s);
        });
        chooseFromMenu(u"Scene"_s, u"Rename"_s);
        QTRY_VERIFY(!QApplication::activeModalWidget());
        QVERIFY(exists(u"Evening market"_s) && exists(u"Ferry arrival"_s) && !exists(u"ferry arrival"_s));
    }

    void clonesAndDeletes()
    {
        const QByteArray content = contentOf(u"Market morning"_s);
        click(seen<OvixSvgButton>(u"Clone scene"_s));
        QTRY_VERIFY(exists(u"Market morning copy"_s));
        QCOMPARE(contentOf(u"Market morning copy"_s), content);
        QTRY_COMPARE(table()->getSelectedScene(), u"Market morning copy"_s);
        keep(u"cloned"_s);

        onceOpen<VelmoMessageWidget>([this](VelmoMessageWidget *box) {
            keep(u"question"_s);
            click(box->findChild<QWidget *>(u"cancelButton"_s));
        });
        click(seen<OvixSvgButton>(u"Delete scene"_s));
        QTRY_VERIFY(window()->isActiveWindow());
        QVERIFY(exists(u"Market morning copy"_s));

        onceOpen<VelmoMessageWidget>(
            [this](VelmoMessageWidget *box) { click(box->findChild<QWidget *>(u"okButton"_s)); });
        RealInput::key(u"Delete"_s);
        QTRY_VERIFY(!exists(u"Market morning copy"_s));
        QCOMPARE(trash(), QStringList(u"Market morning copy.vscene"_s));
        QCOMPARE(contentOf(u"Market morning"_s), content);
        QTRY_COMPARE(table()->getSelectedScene(), u"Market morning"_s); // the last one that can be read
        keep(u"deleted"_s);
    }

    void makesANewScene()
    {
        click(seen<OvixSvgButton>(u"New scene"_s));
        QTRY_VERIFY(exists(u"New scene"_s));
        QTRY_COMPARE(table()->getSelectedScene(), u"New scene"_s);
        keep(u"new"_s);
        RealInput::key(u"ctrl+o"_s);
        QTRY_VERIFY(window()->showsScene());
        QVERIFY(window()->windowTitle().startsWith(u"New scene"_s));
        keep(u"opened"_s);
    }

private:
    const QString project = u"Harbour Quarter"_s;

    VelmoScenesTable *table() const { return window()->startScreen()->findChild<VelmoScenesTable *>(); }
    bool exists(const QString &scene) const { return QFile::exists(scenePath(project, scene)); }
    QByteArray contentOf(const QString &scene) const { return Files::read(scenePath(project, scene)); }
};

VELMO_TEST_MAIN(SceneFilesJourney)
#include "SceneFilesJourney.moc"
