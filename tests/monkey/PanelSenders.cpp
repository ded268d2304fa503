#include "monkey/SenderTables.h"

#include "OvixSvgButton.h"
#include "OvixThumbnailSizeWidget.h"
#include "QMultiCompleterLineEdit.h"
#include "oVIXCloseDetachWidget.h"
#include "oVIXDialogTitle.h"
#include "oVIXDock.h"
#include "oVIXDockBar.h"
#include "oVIXFloatingSelectorWidget.h"
#include "oVIXGrip.h"
#include "oVIXMainWindow.h"
#include "oVIXMinMaxCloseWidget.h"
#include "oVIXTitleBar.h"
#include "oVIXWindowWaitGlobal.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace Senders {
namespace {

QMainWindow *createMainWindow(QWidget *host)
{
    auto *window = new QMainWindow(host);
    window->setGeometry(50, 50, 600, 400);
    return window;
}

oVIXDockBar *createDockBar(QWidget *host)
{
    auto *bar = placed(new oVIXDockBar(host), {300, 24});
    bar->thumbAvailable();
    bar->setSearchEnabled(true);
    bar->setHideSearchUntilHover(false);
    return bar;
}

oVIXDock *createDock(QWidget *host)
{
    QMainWindow *window = createMainWindow(host);
    auto *dock = new oVIXDock(window, u"panel"_s, false, true, false, window);
    dock->setWidget(new QWidget);
    dock->setSearchEnabled(true);
    dock->setHideSearchUntilHover(false);
    window->addDockWidget(Qt::LeftDockWidgetArea, dock);
    Gestures::show(window);
    return dock;
}

/// In the pop-up that the button of the header opens.
void chooseThumbnailSize(QWidget *header)
{
    Gestures::click(partOf(header, u"btThumbMode"_s));
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (qobject_cast<OvixThumbnailSizeWidget *>(window))
            return Gestures::click(window->findChildren<QAbstractButton *>().constLast());
    }
}

void search(QWidget *header)
{
    type(header->findChild<QMultiCompleterLineEdit *>(), u"a"_s);
}

void clearSearch(QWidget *header)
{
    auto *field = header->findChild<QMultiCompleterLineEdit *>();
    QWidget *button = field->parentWidget()->findChild<OvixSvgButton *>();
    field->setText(u"a"_s);
    Gestures::click(button);
}

void showAt(oVIXFloatingWidget *popup)
{
    popup->showAt(QPoint(60, 60));
}

void chooseLast(oVIXFloatingWidget *popup)
{
    showAt(popup);
    Gestures::click(popup->findChildren<QAbstractButton *>().constLast());
}

} // namespace
} // namespace Senders

QList<Senders::Sender> Senders::ofFrameAndDocking()
{
    const Act choose = with<oVIXFloatingWidget>(chooseLast);
    const Act chooseSize = with<QWidget>(chooseThumbnailSize);
    const Act typeSearch = with<QWidget>(search);
    const Act clear = with<QWidget>(clearSearch);
    return {
        {"FloatingOption",
         [](QWidget *host) -> QObject * {
             auto *selector = new oVIXFloatingSelectorWidget(100, false, host);
             selector->addButton({u"a"_s, u"Actors"_s}, true);
             return selector->findChild<QAbstractButton *>();
         },
         {{"reached()", with<QWidget>([](QWidget *option) {
               showAt(static_cast<oVIXFloatingWidget *>(option->parentWidget()));
               Gestures::hover(option);
           }),
           Deletion::Later}}},
        {"OvixThumbnailSizeWidget",
         [](QWidget *host) {
             auto *chooser = new OvixThumbnailSizeWidget(host);
             chooser->setup(100);
             return chooser;
         },
         {{"sizeSelected(int)", choose}}},
        {"oVIXFloatingSelectorWidget",
         [](QWidget *host) {
             auto *selector = new oVIXFloatingSelectorWidget(100, false, host);
             selector->addButton({u"a"_s, u"Actors"_s}, true);
             return selector;
         },
         {{"optionSelected(QString)", choose}}},
        {"oVIXFloatingWidget",
         [](QWidget *host) { return new oVIXFloatingWidget(host); },
         {{"shown()", with<oVIXFloatingWidget>(showAt), Deletion::Later},
          {"hidden()", with<oVIXFloatingWidget>([](oVIXFloatingWidget *popup) {
               showAt(popup);
               Gestures::leave();
               popup->parentWidget()->activateWindow();
           }),
           Deletion::Later}}},
        {"oVIXCloseDetachWidget",
         [](QWidget *host) {
             auto *buttons = placed(new oVIXCloseDetachWidget(host), {75, 24});
             buttons->thumbAvailable();
             return buttons;
         },
         {{"thumbClicked(int)", chooseSize},
          {"closeClicked()", click(u"btClose"_s)},
          {"detachClicked()", click(u"btDetach"_s)}}},
        {"oVIXDockBar",
         createDockBar,
         {{"closeClicked()", click(u"btClose"_s)},
          {"detachClicked()", click(u"btDetach"_s)},
          {"thumbClicked(int)", chooseSize},
          {"s_clearoptions()", clear},
          {"s_search(QString)", typeSearch, Deletion::Later},
          {"s_search(QString)", clear, Deletion::Later}}},
        {"oVIXDock",
         createDock,
         {{"closeClicked()", click(u"btClose"_s)},
          {"thumbClicked(int)", chooseSize},
          {"s_search(QString)", typeSearch, Deletion::Later},
          {"s_search(QString)", clear, Deletion::Later},
          {"s_clearoptions()", clear}}},
        {"oVIXDialogTitle",
         [](QWidget *host) {
             return placed(new oVIXDialogTitle(host), {300, 30});
         },
         {{"closeClicked()",
           with<QWidget>([](QWidget *title) { Gestures::click(title->findChild<OvixSvgButton *>()); })}}},
        {"oVIXGrip",
         [](QWidget *host) {
             auto *grip = new oVIXGrip(host, oVIXGrip::Right, 5, 10);
             grip->autoResize();
             return grip;
         },
         {{"resizeByGrip(QPoint,bool)", drag({}, QPoint(-50, 0))}}},
        {"oVIXMainWindow",
         [](QWidget *) { return new oVIXMainWindow; },
         {{"closed()", with<QWidget>([](QWidget *window) {
               Gestures::show(window);
               window->close();
           })}}},
        {"oVIXMinMaxCloseWidget",
         [](QWidget *host) {
             return placed(new oVIXMinMaxCloseWidget(true, true, true, host), {140, 32});
         },
         {{"s_minimize()", click(u"btMin"_s)},
          {"s_maximize()", click(u"btMax"_s)},
          {"s_close()", click(u"btClose"_s)}}},
        {"oVIXTitleBar",
         [](QWidget *host) {
             QMainWindow *window = createMainWindow(host);
             auto *bar = new oVIXTitleBar(window->menuBar(), true, true, true);
             Gestures::show(window);
             return bar;
         },
         {{"minimized()",
           with<oVIXTitleBar>([](oVIXTitleBar *bar) { Gestures::click(partOf(bar->getCloseWidget(), u"btMin"_s)); })},
          {"maximized()", with<oVIXTitleBar>([](oVIXTitleBar *bar) {
               Gestures::doubleClick(static_cast<QMainWindow *>(bar->parent())->menuBar());
           })},
          {"closed()", with<oVIXTitleBar>([](oVIXTitleBar *bar) {
               Gestures::click(partOf(bar->getCloseWidget(), u"btClose"_s));
           })}}},
        {"oVIXWindowWaitGlobal",
         [](QWidget *host) { return new oVIXWindowWaitGlobal(host); },
         {{"delayFinished()", with<oVIXWindowWaitGlobal>([](oVIXWindowWaitGlobal *wait) {
               wait->startWait(true);
               wait->timeElapsedEvent();
               wait->progressEvent(u"Baking"_s);
           })}}},
    };
}
