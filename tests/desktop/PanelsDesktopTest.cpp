#include "apps/WindowTest.h"
#include "desktop/RealInput.h"

#include "OvixSvgButton.h"
#include "OvixThumbnailSizeWidget.h"
#include "oVIXCombo.h"
#include "oVIXDockBar.h"
#include "panels/LibraryPanel.h"
#include "panels/ParametersPanel.h"
#include "window/ScenePage.h"
#include "window/WorkstationWindow.h"

#include <QAbstractItemView>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

class PanelsDesktopTest : public WindowTest
{
    Q_OBJECT

public:
    PanelsDesktopTest()
        : WindowTest({{u"Hall"_s,
                       "<background width=\"90\" depth=\"60\"/><tags><tag id=\"1\" name=\"vip\"/></tags>"
                       "<actors><actor type=\"adult\" tags=\"1\"/><actor type=\"child\"/></actors>"}})
    { }

private slots:
    void init()
    {
        WindowTest::init();
        open();
        QTRY_VERIFY(library()->isVisible() && library()->width() > 0);
        QTest::qWait(50); // the docks' own layout
    }

    void floatsAndIsResizedByItsGrips()
    {
        RealInput::moveTo(titleOf(library()));
        RealInput::click(middleOf(library(), u"btDetach"_s));
        QTRY_VERIFY(library()->isFloating());
        library()->setGeometry(500, 300, 320, 260);
        QTRY_COMPARE(library()->geometry(), QRect(500, 300, 320, 260));
        QTest::qWait(100);
        RealInput::drag(QPoint(501, 400), QPoint(461, 400));
        QTRY_COMPARE(library()->geometry(), QRect(460, 300, 360, 260));
        RealInput::drag(QPoint(818, 400), QPoint(848, 400));
        QTRY_COMPARE(library()->geometry(), QRect(460, 300, 390, 260));
        RealInput::drag(QPoint(600, 557), QPoint(600, 587));
        QTRY_COMPARE(library()->geometry(), QRect(460, 300, 390, 290));
        RealInput::moveTo(QPoint(500, 310));
        RealInput::click(middleOf(library(), u"btDetach"_s));
        QTRY_VERIFY(!library()->isFloating());
    }

    void aPopUpChoosesAndClosesByItself()
    {
        RealInput::moveTo(titleOf(library()));
        RealInput::click(middleOf(library(), u"btThumbMode"_s));
        auto *chooser = window()->findChild<OvixThumbnailSizeWidget *>();
        QVERIFY(chooser);
        QTRY_VERIFY(chooser->isVisible());
        RealInput::click(chooser->mapToGlobal(QPoint(40, chooser->height() - 14)));
        QTRY_COMPARE(library()->getThumbnailSize(), 200);
        QTRY_VERIFY(!chooser->isVisible());

        RealInput::moveTo(titleOf(library()));
        RealInput::click(middleOf(library(), u"btThumbMode"_s));
        QTRY_VERIFY(chooser->isVisible());
        QTest::qWait(300); // with the focus it stays, wherever the pointer is
        QVERIFY(chooser->isVisible());
        RealInput::moveTo(window()->scenePage()->mapToGlobal(QPoint(300, 300)));
        window()->activateWindow();
        window()->scenePage()->setFocus();
        QElapsedTimer timer;
        timer.start();
        QTRY_VERIFY(!chooser->isVisible());
        QVERIFY2(timer.elapsed() < 250, qPrintable(QString::number(timer.elapsed())));
    }

    void aPopUpGivesTheKeysBack()
    {
        auto *button = library()->findChild<OvixSvgButton *>(u"btThumbMode"_s);
        button->setFocusPolicy(Qt::StrongFocus);
        for (const bool floating : {false, true}) {
            if (floating) {
                library()->setFloating(true);
                library()->setGeometry(500, 300, 320, 260);
                QTRY_COMPARE(library()->geometry(), QRect(500, 300, 320, 260));
                QTest::qWait(100);
            }
            RealInput::click(titleOf(library())); // without the pointer the button is hidden
            QTRY_VERIFY(library()->isActiveWindow());
            button->setFocus();
            RealInput::key(u"space"_s);
            auto *chooser = window()->findChild<OvixThumbnailSizeWidget *>();
            QVERIFY(chooser);
            QTRY_VERIFY(chooser->isActiveWindow());
            RealInput::key(u"Escape"_s);
            QTRY_COMPARE(QApplication::focusWidget(), button);
            RealInput::key(u"space"_s);
            QTRY_VERIFY(chooser->isActiveWindow());
            RealInput::key(u"Home"_s);
            RealInput::key(floating ? u"Down"_s : u"Up"_s);
            RealInput::key(u"Return"_s);
            QTRY_COMPARE(library()->getThumbnailSize(), floating ? 100 : 200);
            QTRY_COMPARE(QApplication::focusWidget(), button);
        }
    }

    void searchesAndForgets()
    {
        RealInput::moveTo(titleOf(library()));
        RealInput::click(titleOf(library()));
        RealInput::type(u"chi"_s);
        RealInput::key(u"Escape"_s); // the suggestions
        const auto *list = library()->findChild<QAbstractItemView *>();
        QTRY_COMPARE(list->model()->rowCount(), 1);
    }

    void aMenuIsAnsweredByKeys()
    {
        auto *colours = window()->parametersPanel()->findChild<oVIXCombo *>();
        QSignalSpy chosen(colours, &oVIXCombo::currentIndexChanged);
        // The menu keeps an event loop of its own: what happens in it is arranged before.
        QTimer::singleShot(800, this, [] {
            RealInput::key(u"Down"_s);
            RealInput::key(u"Down"_s);
            RealInput::key(u"Down"_s);
            RealInput::key(u"Return"_s);
        });
        colours->setFocus();
        RealInput::key(u"space"_s);
        QTRY_COMPARE(chosen.size(), 1);
        QCOMPARE(colours->getCurrentComboText(), u"Goal"_s);
    }

private:
    static constexpr QRect place{120, 90, 1200, 760};

    void show(QWidget *window) const override { RealInput::show(window, place); }

    LibraryPanel *library() const { return window()->libraryPanel(); }
    static QPoint titleOf(oVIXDock *dock) { return dock->getTitleWidget()->mapToGlobal(QPoint(60, 12)); }
    static QPoint middleOf(const QWidget *parent, const QString &name)
    {
        const auto *child = parent->findChild<QWidget *>(name);
        return child->mapToGlobal(child->rect().center());
    }
};

VELMO_TEST_MAIN(PanelsDesktopTest)
#include "PanelsDesktopTest.moc"
