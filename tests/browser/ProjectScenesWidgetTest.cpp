#include "SceneRows.h"
#include "support/Files.h"
#include "support/Picture.h"
#include "support/TestCase.h"

#include "browser/VelmoProjectScenesWidget.h"
#include "browser/VelmoSceneMetadataParser.h"
#include "messages/VelmoYesNoWidget.h"

#include <QAccessible>
#include <QDateTime>
#include <QDir>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

using namespace SceneRows;

namespace {

/// A panel that says which of its virtual signals were called, and passes them on.
struct Panel : VelmoProjectScenesWidget
{
    using VelmoProjectScenesWidget::clearPreview;
    using VelmoProjectScenesWidget::setPreview;

    void sceneSelectionChanged() override
    {
        pass(u"selection"_s, [this] { Base::sceneSelectionChanged(); });
    }
    void deleteScenePressed() override
    {
        pass(u"delete"_s, [this] { Base::deleteScenePressed(); });
    }
    void cloneScenePressed() override
    {
        pass(u"clone"_s, [this] { Base::cloneScenePressed(); });
    }
    void newScenePressed() override
    {
        pass(u"new"_s, [this] { Base::newScenePressed(); });
    }
    void renameTriggered(QString oldName, QString newName) override
    {
        pass(u"rename "_s + oldName + u" to "_s + newName, [&] { Base::renameTriggered(oldName, newName); });
    }

    QStringList taken() { return std::exchange(calls, {}); }

    VelmoScenesTable *table = part<VelmoScenesTable>(this, "scenesTable");
    QLabel *preview = part<QLabel>(this, "thumbnailLabel");

private:
    using Base = VelmoProjectScenesWidget;

    template <class Call> void pass(const QString &name, Call call)
    {
        calls << name;
        call();
    }

    QStringList calls;
};

QByteArray scene(const QByteArray &attributes)
{
    return "<VelmoSerializer><scenemetadata " + attributes + "/>\n</VelmoSerializer>";
}

/// The texts of a row, without the date, and whether it warns.
QStringList factsOf(const VelmoSceneItem *row)
{
    QStringList facts{row->getName()};
    for (const char *label : {"bakeLabel", "actorsLabel", "vehiclesLabel", "timeFramerateLabel", "versionLabel"})
        facts << part<QLabel>(row, label)->accessibleName();
    if (part<OvixSvgLabel>(row, "statusLabel")->hasFilenames())
        facts << u"newer"_s;
    return facts;
}

} // namespace

class ProjectScenesWidgetTest : public TestCase
{
    Q_OBJECT

private slots:
    void isBuiltAsDesigned()
    {
        const Panel panel;
        QStringList order;
        for (const QLayout *row :
             std::initializer_list<const QLayout *>{panel.layout(), part(&panel, "buttonsWidget")->layout()}) {
            for (int i = 0; i < row->count(); ++i)
                order << row->itemAt(i)->widget()->objectName();
        }
        QCOMPARE(order.join(u' '),
                 u"buttonsWidget thumbnailLabel scenesTable closeSceneButton deleteSceneButton yesNoWidget"_s);
        const auto *bar = part<VelmoYesNoWidget>(&panel, "yesNoWidget");
        QVERIFY(!bar->getEnableOkButton());
        QCOMPARE(part(bar, "cancelButton")->styleSheet(),
                 u"#cancelButton {\n\tborder:0px;\n\tborder-top-right-radius:4px;\n\tborder-bottom-right-radius:4px;"
                 "\n\tbackground-color:rgb(81,81,81)\n}\n\n#cancelButton:disabled {\n\tbackground-color:rgb(39,39,39);"
                 "\n}"_s);
        for (const auto &[name, tip, spoken] :
             {std::tuple("closeSceneButton", "Tooltip clone scene", "Clone scene"),
              std::tuple("deleteSceneButton", "Tooltip delete scene", "Delete scene")}) {
            QWidget *button = part(&panel, name);
            QCOMPARE(button->toolTip(), QString::fromLatin1(tip));
            QCOMPARE(QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name),
                     QString::fromLatin1(spoken));
        }
    }

    void listsFiles()
    {
        const QString before = QDir::currentPath();
        const QTemporaryDir folder;
        const QString longName = QString(255, u'x');
        Files::write(folder.filePath(u"all"_s),
                     scene("version='99.1' time-fps='10s | 25' bakestatus='Baked' actorcount='12' vehiclescount='3'"));
        Files::write(folder.filePath(longName), scene("version='2.0'"));
        Panel panel;
        // The path is relative to the folder of that time.
        QVERIFY(QDir::setCurrent(folder.path()));
        panel.addScene(u"all"_s);
        QVERIFY(QDir::setCurrent(before));
        panel.addScene(folder.filePath(longName));
        panel.addScene(folder.filePath(u"<b>\"gone\" &amp;\n.vscene"_s));
        panel.addScene(QString());
        panel.addScene(u"dir/a\0b"_s);
        QCOMPARE(panel.getSceneCount(), 5);
        QCOMPARE(factsOf(rowAt(*panel.table, 0)),
                 QStringList({u"all"_s, u"Baked"_s, u"12"_s, u"3"_s, u"10s | 25"_s, u"99.1"_s, u"newer"_s}));
        const auto rest = [](const QString &name, const QString &version = {}) {
            return QStringList{name, {}, u"0"_s, u"0"_s, {}, version};
        };
        QCOMPARE(factsOf(rowAt(*panel.table, 1)), rest(longName, u"2.0"_s));
        QCOMPARE(factsOf(rowAt(*panel.table, 2)), rest(u"<b>\"gone\" &amp;\n.vscene"_s));
        QCOMPARE(factsOf(rowAt(*panel.table, 3)), rest({}));
        QCOMPARE(factsOf(rowAt(*panel.table, 4)), rest(u"a\0b"_s));
        const auto modified = [&](int row) {
            return part<QLabel>(rowAt(*panel.table, row), "lastModifiedLabel")->accessibleName();
        };
        QCOMPARE(modified(0), QFileInfo(folder.filePath(u"all"_s)).lastModified().toString());
        QCOMPARE(modified(2), QString());

        VelmoSceneMetadataParser metadata = VelmoSceneMetadataParser::withDefaults();
        metadata.version = VelmoVersion::current();
        panel.addScene(u"as new as this"_s, metadata, {}, false);
        QVERIFY(!factsOf(rowAt(*panel.table, 5)).contains(u"newer"_s));
        QVERIFY(!rowAt(*panel.table, 5)->isEnabled());
    }

    void mayGoWhileItReports()
    {
        const QTemporaryDir folder;
        QPointer<Panel> panel(new Panel);
        QTimer::singleShot(0, this, [&] {
            QPointer<QMessageBox> box(qobject_cast<QMessageBox *>(QApplication::activeModalWidget()));
            delete panel;
            if (box)
                box->accept();
        });
        panel->addScene(folder.path()); // is no file
        QVERIFY(!panel);
    }

    void forwardsToTheList()
    {
        Panel panel;
        QVERIFY(!panel.isSceneSelected(u"a"_s));
        for (const QString &name : {u"a"_s, u"b"_s, u"c"_s})
            add(*panel.table, name);
        panel.setSelectedRow(99);
        QCOMPARE(panel.getSelectedRow(), 2);
        panel.setSceneSelected(u"B"_s);
        QVERIFY(panel.isSceneSelected(u"B"_s) && panel.isSceneSelected(u"b"_s) && !panel.isSceneSelected(u"a"_s));
        QCOMPARE(panel.getSelectedScene(), u"b"_s);
        panel.setSceneEnabled(u"C"_s, true);
        QVERIFY(panel.isSceneEnabled(u"c"_s) && !panel.isSceneEnabled(u"a"_s));
        panel.setDefaultSelection();
        QCOMPARE(panel.getSelectedRow(), 2);
        panel.renameScene(u"c"_s, u"d"_s);
        QCOMPARE(panel.getSelectedScene(), u"d"_s);
        panel.taken();
        panel.clearScenes();
        QCOMPARE(panel.getSceneCount(), 0);
        QCOMPARE(panel.taken(), QStringList());
    }

    void asksTheApplication()
    {
        Panel panel;
        panel.clearScenes();
        showActive(panel);
        QSignalSpy accepted(&panel, &VelmoProjectScenesWidget::accept);
        QSignalSpy rejected(&panel, &VelmoProjectScenesWidget::reject);
        QWidget *ok = part(&panel, "okButton");
        Gestures::click(ok);
        QCOMPARE(accepted.count(), 0);
        panel.setYesNoButtonEnabled(true);
        QVERIFY(ok->styleSheet().contains(u"background:rgb(22,129,189)"_s));
        Gestures::click(ok);
        Gestures::click(part(&panel, "cancelButton"));
        QCOMPARE(accepted.count(), 1);
        QCOMPARE(rejected.count(), 1);
        panel.setYesNoButtonText(u"ADD"_s);
        QCOMPARE(part<QLabel>(&panel, "okButton")->text(), u"ADD"_s);

        // The receiver of each rebuilds the list below the button that is still at work.
        QStringList heard;
        const auto rebuild = [&](const QString &name) {
            heard << name;
            panel.clearScenes();
            panel.addScene(u"a"_s);
            panel.addScene(u"b"_s);
        };
        connect(&panel, &VelmoProjectScenesWidget::deleteScenePressed, this, [&] { rebuild(u"delete"_s); });
        connect(&panel, &VelmoProjectScenesWidget::cloneScenePressed, this, [&] { rebuild(u"clone"_s); });
        connect(&panel, &VelmoProjectScenesWidget::newScenePressed, this, [&] { rebuild(u"new"_s); });
        connect(&panel, &VelmoProjectScenesWidget::renameTriggered, this, [&] { rebuild(u"rename"_s); });
        const auto emitted = [&] {
            Events::untilIdle();
            QCOMPARE(flawOf(*panel.table), QString());
            heard << panel.taken();
        };
        Gestures::click(newSceneButton(*panel.table));
        emitted();
        Gestures::click(part(&panel, "closeSceneButton"));
        emitted();
        Gestures::click(part(&panel, "deleteSceneButton"));
        emitted();
        QLineEdit *edit = startRenaming(rowAt(*panel.table, 1));
        QTest::keyClicks(edit, u"c"_s);
        QTest::keyClick(edit, Qt::Key_Return);
        emitted();
        QCOMPARE(heard.join(u", "_s), u"new, new, clone, clone, delete, delete, rename, selection, rename b to c"_s);
    }

    void switchesModes()
    {
        Panel panel;
        showActive(panel);
        panel.taken();
        for (const bool on : {false, true}) {
            panel.setEditingEnabled(on);
            for (const char *button : {"closeSceneButton", "deleteSceneButton"})
                QCOMPARE(part(&panel, button)->isVisible(), on);
            QCOMPARE(flawOf(*panel.table, on), QString());
            panel.setSceneButtonsEnabled(on);
            Gestures::click(part(&panel, "deleteSceneButton"));
            QCOMPARE(panel.taken().size(), qsizetype(on));
        }
        add(*panel.table, u"a"_s);
        Events::untilIdle();
        QTest::keyClicks(startRenaming(rowAt(*panel.table, 0)), u"b"_s);
        panel.finishEditing();
        Events::untilIdle();
        QVERIFY(!part(rowAt(*panel.table, 0), "nameEdit")->isVisible());
        QCOMPARE(panel.taken(), QStringList(u"selection"_s));
        startRenaming(rowAt(*panel.table, 0)); // and goes with an open edit
    }

    void showsPreviews()
    {
        Panel panel;
        panel.resize(766, 900);
        showActive(panel);
        panel.clearPreview();
        QCOMPARE(panel.preview->text(), u"<b>NO SCENE PREVIEW</b>"_s);
        QCOMPARE(panel.preview->alignment(), Qt::AlignCenter);
        QCOMPARE(panel.preview->styleSheet(),
                 u"QLabel {  border-radius:4px; \tcolor:rgb(219,219,219);\tbackground:rgb(59,59,59);}"_s);
        QCOMPARE(Picture::colourAt(panel.preview, {20, 20}), QColor(59, 59, 59));
        const QRect place = panel.preview->geometry();
        QCOMPARE(place.size(), QSize(726, 408));

        const double ratio = panel.devicePixelRatioF();
        const int width = qRound(726 * ratio);
        for (const QSize size : {QSize(1, 1), QSize(20000, 400), QSize(160, 90), QSize(726, 10)}) {
            QPixmap picture(size);
            picture.fill(Qt::red);
            panel.setPreview(picture);
            const QPixmap shown = panel.preview->pixmap();
            QCOMPARE(shown.size().width(), width);
            QVERIFY(qAbs(shown.height() - size.height() * double(width) / size.width()) <= 1);
            QCOMPARE(shown.devicePixelRatio(), ratio);
            QVERIFY(Events::untilIdle());
            QCOMPARE(panel.preview->geometry(), place);
            QCOMPARE(Picture::colourAt(panel.preview, {363, 204}), QColor(Qt::red));
        }
        const qint64 key = panel.preview->pixmap().cacheKey();
        panel.setPreview(QPixmap());
        panel.setPreview(QPixmap(1, 20000));
        QCOMPARE(panel.preview->pixmap().cacheKey(), key);
        QCOMPARE(QAccessible::queryAccessibleInterface(panel.preview)->text(QAccessible::Name), u"Scene preview"_s);
        panel.clearPreview();
        QVERIFY(panel.preview->pixmap().isNull());
        panel.setPreview(QPixmap());
        QCOMPARE(QAccessible::queryAccessibleInterface(panel.preview)->text(QAccessible::Name), u"NO SCENE PREVIEW"_s);
    }
};

VELMO_TEST_MAIN(ProjectScenesWidgetTest)
#include "ProjectScenesWidgetTest.moc"
