#include "gallery/TitleBarsPage.h"

#include "OvixSvgButton.h"
#include "gallery/ClickCounter.h"
#include "gallery/FrozenHover.h"
#include "gallery/SampleWindow.h"
#include "look/Palette.h"
#include "oVIXDialogTitle.h"
#include "oVIXMinMaxCloseWidget.h"
#include "oVIXTitleBar.h"

#include <QMenuBar>
#include <QSpacerItem>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize smallDesk(256, 108);
constexpr QSize wideDesk(530, 108);
constexpr auto logo = ":/Workstation/Logo"_L1;
/// What is left of the height by the logo's margins is the width: the picture is square.
constexpr QSize logoSize(19, 32);
constexpr int stripWidth = 328;

QString buttonNames(SampleWindow::Buttons buttons)
{
    QStringList names;
    if (buttons.minimize)
        names << TitleBarsPage::tr("minimise");
    if (buttons.maximize)
        names << TitleBarsPage::tr("maximise");
    if (buttons.close)
        names << TitleBarsPage::tr("close");
    return names.isEmpty() ? TitleBarsPage::tr("no buttons") : names.join(u", ");
}

SampleWindow *createWindow(QSize desk, const QString &words)
{
    SampleWindow *window = createDesk(desk);
    window->addWords(words);
    return window;
}

Sample createButtonRow(const QString &caption, const std::function<void(oVIXMinMaxCloseWidget *)> &setUp = {})
{
    auto *row = new oVIXMinMaxCloseWidget(true, true, true, nullptr);
    if (setUp)
        setUp(row);
    return {createPlate(row, Palette::window), caption};
}

Sample createDialogTitle(const QString &title, const QString &subtitle, const QString &caption)
{
    auto *strip = new oVIXDialogTitle(nullptr);
    strip->setFixedWidth(stripWidth);
    strip->setTitle(title, subtitle);
    return {createPlate(strip, Palette::raised, 8), caption};
}

} // namespace

/// The linker drops the pictures of a static library that nobody asks for.
static void useResources()
{
    Q_INIT_RESOURCE(Workstation);
}

TitleBarsPage::TitleBarsPage(QWidget *parent) : GalleryPage(tr("Title bars"), parent)
{
    useResources();
    addWindow();
    addButtonSets();
    addStates();
    addButtonRows();
    addDialogTitles();
}

void TitleBarsPage::addWindow()
{
    SampleWindow *window = createDesk(QSize(900, 300));
    window->setGeometry(40, 24, 560, 240);
    window->addSceneContent();
    window->titleBar()->setLogo(logo, logoSize);

    auto *counter = new ClickCounter;
    counter->count(window->titleBar(), &oVIXTitleBar::minimized, tr("minimized"));
    counter->count(window->titleBar(), &oVIXTitleBar::maximized, tr("maximized"));
    counter->count(window->titleBar(), &oVIXTitleBar::closed, tr("closed"));
    addSection(tr("A frameless window"),
               tr("Drag it by its title bar, double-click the bar, pull at its edges and corners. "
                  "The numbers count the title bar's signals."))
        ->addRow({{window->parentWidget(), {}}, {counter, {}}});
}

void TitleBarsPage::addButtonSets()
{
    SampleSection *section = addSection(tr("Button sets"));
    QList<Sample> samples;
    for (int set = 7; set >= 0; --set) {
        const SampleWindow::Buttons buttons{(set & 4) != 0, (set & 2) != 0, (set & 1) != 0};
        SampleWindow *window = createDesk(smallDesk, buttons);
        samples.append({window->parentWidget(), buttonNames(buttons)});
        if (samples.size() == 4) {
            section->addRow(samples);
            samples.clear();
        }
    }
}

void TitleBarsPage::addStates()
{
    SampleSection *section = addSection(tr("States"), tr("What an application may add to a bar or take from it."));

    SampleWindow *withLogo = createWindow(wideDesk, tr("The logo keeps to the middle of the bar."));
    withLogo->titleBar()->setLogo(logo, logoSize);
    SampleWindow *withoutLogo = createWindow(wideDesk, tr("The logo has been taken away again."));
    withoutLogo->titleBar()->setLogo(logo, logoSize);
    withoutLogo->titleBar()->setLogo({}, {});
    section->addRow({
        {withLogo->parentWidget(), tr("logo")},
        {withoutLogo->parentWidget(), tr("logo hidden")},
    });

    SampleWindow *withCaption = createWindow(wideDesk, tr("Other controls go into the row of buttons."));
    oVIXMinMaxCloseWidget *row = withCaption->titleBar()->getCloseWidget();
    auto *detach = new OvixSvgButton;
    detach->setFilename(u":/Windows/Detach"_s);
    detach->setFixedSize(32, 32);
    detach->setMargins(8);
    detach->setHoverVisible(true);
    row->insertWidget(createCaption(tr("Platform 4, morning")), 0);
    row->insertItem(new QSpacerItem(12, 0), 1);
    row->insertWidget(detach, 2);
    SampleWindow *maximized = createWindow(wideDesk, tr("The bar offers to restore the window."));
    maximized->toggleMaximized();
    section->addRow({
        {withCaption->parentWidget(), tr("caption and a further button")},
        {maximized->parentWidget(), tr("maximised")},
    });

    SampleWindow *disabled = createWindow(wideDesk, tr("Neither menus nor buttons answer."));
    disabled->titleBar()->setLogo(logo, logoSize);
    disabled->menuBar()->setEnabled(false);
    SampleWindow *hidden = createWindow(wideDesk, tr("The bar keeps its height."));
    hidden->titleBar()->getCloseWidget()->hideCloseButtons();
    section->addRow({
        {disabled->parentWidget(), tr("disabled")},
        {hidden->parentWidget(), tr("buttons hidden")},
    });
}

void TitleBarsPage::addButtonRows()
{
    const auto hovered = [](const QString &name) {
        return [name](oVIXMinMaxCloseWidget *row) { freezeHover(row->findChild<OvixSvgButton *>(name)); };
    };
    addSection(tr("Window buttons"), tr("The row alone, on the ground of a window."))
        ->addRow({
            createButtonRow(tr("normal")),
            createButtonRow(tr("restore"), [](oVIXMinMaxCloseWidget *row) { row->setMaximized(true); }),
            createButtonRow(tr("minimise, hover"), hovered(u"btMin"_s)),
            createButtonRow(tr("maximise, hover"), hovered(u"btMax"_s)),
            createButtonRow(tr("close, hover"), hovered(u"btClose"_s)),
            createButtonRow(tr("disabled"), [](oVIXMinMaxCloseWidget *row) { row->setEnabled(false); }),
        });
}

void TitleBarsPage::addDialogTitles()
{
    SampleSection *section = addSection(tr("Dialog titles"), tr("One line; the texts are plain, whatever they hold."));

    Sample fixed = createDialogTitle(tr("Licence"), tr("Please read"), tr("closing disabled"));
    fixed.widget->findChild<oVIXDialogTitle *>()->setCloseEnabled(false);
    Sample hovered = createDialogTitle(tr("Bake"), tr("Platform 4, morning"), tr("close, hover"));
    freezeHover(hovered.widget->findChild<OvixSvgButton *>());
    section->addRow({createDialogTitle(tr("Bake"), tr("Platform 4, morning"), tr("normal")), hovered, fixed});
    section->addRow({
        createDialogTitle(tr("A title that tells the whole story of a drill in the northern concourse"),
                          tr("on Friday"), tr("long title")),
        createDialogTitle(tr("Bake"), tr("every scene of the project, those that have been baked before included"),
                          tr("long subtitle")),
        createDialogTitle({}, {}, tr("no texts")),
    });
    section->addRow({
        createDialogTitle(u"<b>bold</b> &amp;"_s, u"<img src=x> %1 %n"_s, tr("markup characters")),
        createDialogTitle(u"two  blanks"_s, u"   three before"_s, tr("blanks")),
        createDialogTitle(u"Вокзал – полдень"_s, u"σταθμός – Überführung"_s, tr("other letters")),
    });
}
