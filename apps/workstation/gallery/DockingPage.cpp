#include "gallery/DockingPage.h"

#include "OvixThumbnailSize.h"
#include "OvixThumbnailSizeWidget.h"
#include "QMultiCompleterLineEdit.h"
#include "gallery/FrozenHover.h"
#include "look/Sheets.h"
#include "oVIXDock.h"
#include "oVIXDockBar.h"

#include <QAbstractButton>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QScrollBar>
#include <QStringListModel>

using namespace Qt::StringLiterals;

namespace {

constexpr int headerWidth = 300;
constexpr QSize panelSize(260, 170);
constexpr QSize windowSize(1100, 260);

QStringList objects()
{
    return {DockingPage::tr("Armchair"),      DockingPage::tr("Bench"),           DockingPage::tr("Bicycle stand"),
            DockingPage::tr("Flower bed"),    DockingPage::tr("Kiosk"),           DockingPage::tr("Street lamp"),
            DockingPage::tr("Traffic light"), DockingPage::tr("Waste container"), DockingPage::tr("Zebra crossing")};
}

/// The list that a panel shows, filtered by what is written in its header.
QListWidget *createObjectList(oVIXDock *dock)
{
    auto *list = new QListWidget;
    list->addItems(objects());
    list->setStyleSheet(Sheets::nameList());
    list->verticalScrollBar()->setStyleSheet(Sheets::scrollBar());
    list->setFocusPolicy(Qt::NoFocus);
    QObject::connect(dock, &oVIXDock::s_search, list, [list](const QString &text) {
        for (int row = 0; row < list->count(); ++row)
            list->item(row)->setHidden(!list->item(row)->text().contains(text.trimmed(), Qt::CaseInsensitive));
    });
    return list;
}

oVIXDock *createPanel(QMainWindow *window, const QString &title, const QString &subtitle, bool hideClose = false,
                      bool thumbnails = false, bool hideDetach = false)
{
    auto *dock = new oVIXDock(window, title, hideClose, thumbnails, hideDetach, window);
    dock->setTitle(title, subtitle, u"Inter"_s, 11);
    dock->setWidget(createObjectList(dock));
    return dock;
}

/// A panel that consists of its header.
QWidget *createHeader(oVIXDock **dock, const QString &subtitle = DockingPage::tr("Props"), bool hideClose = false,
                      bool thumbnails = false, bool hideDetach = false)
{
    auto *holder = new QWidget;
    *dock = new oVIXDock(holder, u"header"_s, hideClose, thumbnails, hideDetach, nullptr);
    (*dock)->setTitle(DockingPage::tr("Library"), subtitle, u"Inter"_s, 11);
    (*dock)->setFixedSize(headerWidth, (*dock)->getTitleWidget()->height());
    (*dock)->move(0, 0);
    holder->setObjectName(u"header"_s);
    holder->setAttribute(Qt::WA_StyledBackground);
    holder->setStyleSheet(u"#header { background-color:rgb(59,59,59); }"_s);
    holder->setFixedSize((*dock)->size());
    return holder;
}

Sample headerSample(const QString &caption, const QString &subtitle, bool hideClose, bool thumbnails, bool hideDetach)
{
    oVIXDock *dock = nullptr;
    QWidget *header = createHeader(&dock, subtitle, hideClose, thumbnails, hideDetach);
    dock->setHideSearchUntilHover(false);
    return {header, caption};
}

QLabel *createPicture(QWidget *widget)
{
    auto *label = new QLabel;
    label->setPixmap(widget->grab());
    return label;
}

/// A pop-up closes by itself, so the page shows pictures of it. @p current is the line under the pointer.
QLabel *createPopupPicture(oVIXFloatingSelectorWidget *popup, int current)
{
    const std::unique_ptr<QWidget> owner(popup);
    popup->ensurePolished();
    freezeHover(popup->findChildren<QAbstractButton *>().at(current));
    popup->adjustSize();
    return createPicture(popup);
}

QLabel *createChooserPicture(int size, int current)
{
    auto *chooser = new OvixThumbnailSizeWidget(nullptr);
    chooser->setup(size);
    return createPopupPicture(chooser, current);
}

} // namespace

DockingPage::DockingPage(QWidget *parent) : GalleryPage(tr("Docking"), parent)
{
    addHeaders();
    addSearches();
    addPopups();
    addPanels();
}

void DockingPage::addHeaders()
{
    const QString props = tr("Props");
    const QString odd = tr("Everything that stands in a street, <b>from A & B to Z</b>");
    SampleSection *section =
        addSection(tr("Headers"), tr("Each leaves out the buttons that its panel has no use for."));
    section->addRow({
        headerSample(tr("detach and close"), props, false, false, false),
        headerSample(tr("with thumbnail sizes"), props, false, true, false),
        headerSample(tr("without close"), props, true, true, false),
    });
    section->addRow({
        headerSample(tr("without detach"), props, false, false, true),
        headerSample(tr("no button at all"), props, true, false, true),
        headerSample(tr("a long title"), odd, false, true, false),
    });
}

void DockingPage::addSearches()
{
    const auto sample = [](const QString &caption, auto setUp) {
        oVIXDock *dock = nullptr;
        QWidget *header = createHeader(&dock);
        dock->setSuggestionModel(new QStringListModel(objects(), dock));
        dock->setSearchEnabled(true);
        dock->getTitleWidget()->getSearchLabel()->setFocusPolicy(Qt::ClickFocus);
        setUp(dock);
        return Sample{header, caption};
    };
    addSection(tr("Search"), tr("The field takes the place of the title."))
        ->addRow({
            sample(tr("waiting for the pointer"), [](oVIXDock *) {}),
            sample(tr("under the pointer"), [](oVIXDock *dock) { freezeHover(dock->getTitleWidget()); }),
            sample(tr("always shown, with a text"),
                   [](oVIXDock *dock) {
                       dock->setHideSearchUntilHover(false);
                       dock->changeSearchLabel(tr("lamp"));
                   }),
        });
}

void DockingPage::addPopups()
{
    auto *several = new oVIXFloatingSelectorWidget(180, false, nullptr);
    several->addButton({u"actors"_s, tr("Actors")}, true);
    several->addButton({u"vehicles"_s, tr("Vehicles")}, true);
    several->addButton({u"areas"_s, tr("Areas")}, false);
    several->addButton({u"long"_s,
                        tr("An option with a label so long that no pop-up should ever get as wide as it would need to "
                           "be to show all of it")},
                       false);
    addSection(tr("Pop-ups"), tr("The highlight shows the line under the pointer or reached by keys."))
        ->addRow({
            {createChooserPicture(OvixThumbnailSize::None, 0), tr("no thumbnail")},
            {createChooserPicture(OvixThumbnailSize::Small, 2), tr("small, another under the pointer")},
            {createChooserPicture(OvixThumbnailSize::Medium, 2), tr("medium")},
            {createChooserPicture(OvixThumbnailSize::Large, 3), tr("large")},
            {createPopupPicture(several, 1), tr("several at once")},
        });
}

void DockingPage::addPanels()
{
    auto *window = new QMainWindow;
    window->setFixedSize(windowSize);
    window->setStyleSheet(u"QMainWindow { background-color:rgb(39,39,39); }"_s);
    auto *scene = new QLabel(tr("Scene"));
    scene->setStyleSheet(u"QLabel { background-color:rgb(28,28,28); color:rgb(156,156,156); }"_s);
    scene->setAlignment(Qt::AlignCenter);
    window->setCentralWidget(scene);
    oVIXDock *library = createPanel(window, tr("Library"), tr("Props"), false, true);
    library->setSearchEnabled(true);
    oVIXDock *actors = createPanel(window, tr("Crowd"), tr("Actors"));
    actors->setHideSearchUntilHover(false);
    window->addDockWidget(Qt::LeftDockWidgetArea, library);
    window->addDockWidget(Qt::RightDockWidgetArea, actors);
    addSection(tr("Docked panels"), tr("They float when they are dragged by the header or with the detach button."))
        ->addWide(window);

    QMainWindow owner;
    oVIXDock *floating = createPanel(&owner, tr("Library"), tr("Props"), false, true);
    owner.addDockWidget(Qt::LeftDockWidgetArea, floating);
    floating->hide();
    floating->setFloating(true);
    floating->setHideSearchUntilHover(false);
    floating->resize(panelSize);
    addSection(tr("Floating panel"), tr("Resized at the left, right and bottom edges."))
        ->addRow({{createPicture(floating), {}}});
}
