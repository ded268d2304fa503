#include "gallery/ApplicationSheetSamples.h"

#include "gallery/GalleryPage.h"
#include "look/Palette.h"
#include "oVIXStyle.h"

#include <QCoreApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QTabBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("ApplicationSheetSamples", text);
}

/// The declarations that the application-wide sheet has for @p selector.
QString declarationsFor(const QString &selector)
{
    const QString sheet = oVIXStyle::getAppStyleSheet();
    const QString start = selector + u" {"_s;
    return sheet.sliced(sheet.indexOf(start) + start.size()).section(u'}', 0, 0);
}

} // namespace

QWidget *ApplicationSheetSamples::createMenu()
{
    auto *holder = new QWidget;
    auto *menu = new QMenu(holder);
    QAction *hovered = menu->addAction(tr("Bake scene"));
    QAction *checked = menu->addAction(tr("Show actors"));
    checked->setCheckable(true);
    checked->setChecked(true);
    menu->addAction(tr("Show vehicles"))->setCheckable(true);
    menu->addSeparator();
    menu->addAction(tr("Merge scenes"))->setEnabled(false);

    // As a part of the page it stays open, and clicks do not close it.
    menu->setWindowFlags(Qt::Widget);
    menu->setAttribute(Qt::WA_TransparentForMouseEvents);
    menu->setActiveAction(hovered);
    menu->ensurePolished();
    menu->setFixedSize(menu->sizeHint());
    menu->show();
    auto *layout = new QVBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(menu);
    return holder;
}

QWidget *ApplicationSheetSamples::createTabs()
{
    auto *tabs = new QTabBar;
    tabs->setDrawBase(false);
    tabs->setUsesScrollButtons(false);
    for (const QString &title : {tr("Actors"), tr("Vehicles"), tr("Areas")})
        tabs->addTab(title);
    tabs->setCurrentIndex(1);
    return tabs;
}

QWidget *ApplicationSheetSamples::createGroupBox()
{
    auto *group = new QGroupBox(tr("Population"));
    auto *layout = new QVBoxLayout(group);
    layout->setContentsMargins(0, 8, 0, 0);
    for (const QString &text : {tr("Adults: 240"), tr("Children: 60")}) {
        auto *words = new QLabel(text);
        words->setStyleSheet(u"color:rgb(39,39,39);"_s);
        layout->addWidget(words);
    }
    group->setFixedWidth(140);
    return createPlate(group, Palette::secondaryText);
}

QWidget *ApplicationSheetSamples::createToolTip()
{
    auto *words = new QLabel(tr("The scene was saved by a newer release."));
    words->setStyleSheet(u"QLabel {"_s + declarationsFor(u"QToolTip"_s) + u'}');
    words->setToolTip(tr("A real tool tip."));
    return words;
}
