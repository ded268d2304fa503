#include "scale/Views.h"

#include "support/Events.h"

#include "VelmoFeedbackConsentDialog.h"
#include "VelmoMessageBox.h"
#include "gallery/GalleryPages.h"
#include "gallery/GalleryWindow.h"
#include "look/ApplicationLook.h"
#include "look/Wording.h"
#include "oVIXCombo.h"
#include "oVIXWindowWaitGlobal.h"
#include "panels/LibraryPanel.h"
#include "scenes/ShippedProjects.h"
#include "start/StartScreen.h"
#include "window/ScenePage.h"
#include "window/WorkstationWindow.h"

#include <QAbstractAnimation>
#include <QApplication>
#include <QDialog>
#include <QDockWidget>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

using Window = std::unique_ptr<WorkstationWindow>;

Window startScreen(int project)
{
    auto window = std::make_unique<WorkstationWindow>(ShippedProjects::folder());
    window->show();
    StartScreen *screen = window->startScreen();
    screen->selectProject(project);
    return QTest::qWaitFor([screen] { return !screen->isReading(); }) ? std::move(window) : nullptr;
}

Window scenePage()
{
    Window window = startScreen(0);
    if (!window)
        return nullptr;
    window->startScreen()->openSelectedScene();
    const bool shown = QTest::qWaitFor([&window] { return !window->isLoading() && window->showsScene(); });
    return shown ? std::move(window) : nullptr;
}

Window withDialog(Window window, void (WorkstationWindow::*open)())
{
    if (window)
        (window.get()->*open)();
    return window;
}

/// The start screen under a box that has every part a box can have.
Window messageBox(VelmoButtonMode mode, const QString &text)
{
    static QString edited = u"Evening rush"_s;
    Window window = startScreen(0);
    if (!window)
        return nullptr;
    auto *box = new VelmoMessageWidget(u"WARNING"_s, u"Delete scene"_s, false, window.get(), nullptr);
    box->setText(text);
    box->setOtherOption(u"Keep both of them"_s);
    box->setButtonMode(mode);
    box->setButtonMessage(u"Cannot be undone"_s);
    if (mode == EditButtons)
        box->showEditable(true, &edited);
    box->open();
    return window;
}

Window openMenu(Window window, int menu)
{
    if (window)
        window->menuBar()->setActiveAction(window->menuBar()->actions().at(menu));
    return window;
}

Window floatingPanel()
{
    Window window = scenePage();
    if (window)
        window->libraryPanel()->setFloating(true);
    return window;
}

/// The mark of a wait that nothing has started stands still.
Window wait(const QString &text)
{
    Window window = scenePage();
    if (!window)
        return nullptr;
    oVIXWindowWaitGlobal *overlay = window->getWindowWait();
    overlay->setText(text);
    overlay->setTextVisible(true);
    overlay->setPercentVisible(true);
    overlay->show();
    return window;
}

std::unique_ptr<QWidget> combo()
{
    auto combo = std::make_unique<oVIXCombo>();
    combo->resize(184, combo->height());
    combo->setText(u"Motion"_s);
    const QStringList motions{u"Walk"_s, u"Stand & wait"_s, u"Follow the nearest vehicle at a distance"_s};
    combo->addItems(motions, motions);
    return combo;
}

/// A whole page, however tall.
std::unique_ptr<QWidget> galleryPage(const GalleryPages::Page &page)
{
    std::unique_ptr<QWidget> widget(page.create());
    widget->show();
    Events::untilIdle();
    widget->adjustSize();
    return widget;
}

struct View
{
    QString name;
    std::function<std::unique_ptr<QWidget>()> create;
    /// How often the toolkit complains of a sheet that is meant to be as it is: those of the consent dialog's options.
    int complaints = 0;
};

QList<View> all()
{
    constexpr int ofConsentDialog = 3;
    const QString sentence = u"Every scene of the project is read again, and changes are lost. "_s;
    QList<View> views;
    const QList<GalleryPages::Page> pages = GalleryPages::all();
    for (const GalleryPages::Page &page : pages)
        views.append(
            {page.id, [page] { return galleryPage(page); }, page.id == "consent"_L1 ? 3 * ofConsentDialog : 0});
    views += QList<View>{
        {u"gallery"_s, [] { return std::make_unique<GalleryWindow>(); }},
        {u"start"_s, [] { return startScreen(0); }},
        {u"start-odd-names"_s, [] { return startScreen(2); }},
        {u"start-about"_s, [] { return withDialog(startScreen(0), &WorkstationWindow::showAbout); }},
        {u"start-consent"_s, [] { return withDialog(startScreen(0), &WorkstationWindow::showFeedbackConsent); },
         ofConsentDialog},
        {u"start-welcome"_s, [] { return withDialog(startScreen(0), &WorkstationWindow::showWelcome); }},
        {u"start-tour"_s, [] { return withDialog(startScreen(0), &WorkstationWindow::showTour); }},
        {u"scene"_s, [] { return scenePage(); }},
        {u"scene-facts"_s, [] { return withDialog(scenePage(), &WorkstationWindow::showSceneFacts); }},
        {u"scene-menu"_s, [] { return openMenu(scenePage(), 0); }},
        {u"scene-panels"_s, [] { return openMenu(scenePage(), 1); }},
        {u"scene-floating"_s, [] { return floatingPanel(); }},
        {u"scene-wait"_s, [sentence] { return wait(sentence.repeated(9)); }},
        {u"scene-tour"_s, [] { return withDialog(scenePage(), &WorkstationWindow::showTour); }},
        {u"box-question"_s, [] { return messageBox(QuestionButtons, u"Delete it?"_s); }},
        {u"box-edit"_s, [] { return messageBox(EditButtons, u"Scene"_s); }},
        {u"box-options"_s, [sentence] { return messageBox(ThreeOptionButtons, sentence.repeated(9)); }},
        {u"box-long"_s, [sentence] { return messageBox(InformationButtons, sentence.repeated(60)); }},
        {u"combo-menu"_s, [] { return combo(); }},
    };
    return views;
}

/// The toolkit has made dialogs fit a screen that is smaller than any which a scale of 3 is for.
void growToSizeHints(QWidget *window)
{
    const QList<QDialog *> dialogs = window->findChildren<QDialog *>();
    for (QDialog *dialog : dialogs) {
        if (dialog->height() < dialog->sizeHint().height())
            dialog->setFixedHeight(dialog->sizeHint().height());
    }
}

/// What lies over @p window, or that itself.
QWidget *frontOf(QWidget *window)
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    const QList<QDockWidget *> panels = window->findChildren<QDockWidget *>();
    const auto floating = std::find_if(panels.cbegin(), panels.cend(), [](const QDockWidget *panel) {
        return panel->isVisible() && panel->isFloating();
    });
    return floating == panels.cend() ? window : *floating;
}

} // namespace

void Views::installLook()
{
    ApplicationLook::install();
    QVERIFY(Wording::install());
}

QStringList Views::names()
{
    QStringList names;
    const QList<View> views = all();
    for (const View &view : views)
        names << view.name;
    return names;
}

void Views::with(const QString &name, const std::function<void(QWidget *)> &look)
{
    const QList<View> views = all();
    const auto view = std::find_if(views.cbegin(), views.cend(), [&](const View &known) { return known.name == name; });
    for (int i = 0; i < view->complaints; ++i)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Could not parse stylesheet of object QRadioButton"_s));
    const std::unique_ptr<QWidget> window = view->create();
    QVERIFY2(window, "it does not come up");
    window->show();
    Events::untilIdle();
    endAnimations(window.get());
    growToSizeHints(window.get());
    Events::untilIdle();
    const auto lookAtFront = [&] { look(frontOf(window.get())); };
    auto *combo = qobject_cast<oVIXCombo *>(window.get());
    if (!combo) {
        lookAtFront();
        return;
    }
    // It waits for its menu.
    QTimer::singleShot(0, combo, [&] {
        QVERIFY(QApplication::activePopupWidget());
        lookAtFront();
        QApplication::activePopupWidget()->close();
    });
    QMetaObject::invokeMethod(combo, "showMenu");
}

void Views::endAnimations(const QWidget *window)
{
    const QList<QAbstractAnimation *> animations = window->findChildren<QAbstractAnimation *>();
    for (QAbstractAnimation *animation : animations) {
        if (animation->state() == QAbstractAnimation::Running)
            animation->setCurrentTime(animation->totalDuration());
    }
}
