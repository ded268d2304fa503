#include "gallery/SampleWindow.h"

#include "gallery/GalleryPage.h"
#include "look/Sheets.h"
#include "oVIXMinMaxCloseWidget.h"
#include "oVIXTitleBar.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int deskMargin = 8;
constexpr int reach = 32; // of a window at the desk's edge
constexpr int listWidth = 112;

void addMenu(QMenuBar *menuBar, const QString &title, const QStringList &entries)
{
    QMenu *menu = menuBar->addMenu(title);
    for (const QString &entry : entries)
        menu->addAction(entry);
}

QLabel *createValue(const QString &text)
{
    auto *label = new QLabel(text);
    label->setStyleSheet(u"QLabel { font-family:Inter; font-size:11px; color:rgb(219,219,219); }"_s);
    return label;
}

} // namespace

SampleWindow::SampleWindow(QWidget *desk, Buttons buttons) : oVIXMainWindow(desk, nullptr)
{
    // Not a window of its own; the corner grips stop at it all the same.
    setWindowFlags(Qt::SubWindow);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(u"SampleWindow { background-color:rgb(39,39,39); }"_s);
    setMinimumSize(160, 64);

    menuBar()->setNativeMenuBar(false);
    addMenu(menuBar(), tr("File"), {tr("New"), tr("Open"), tr("Save")});
    addMenu(menuBar(), tr("Edit"), {tr("Undo"), tr("Redo")});
    addMenu(menuBar(), tr("Help"), {tr("Contents"), tr("About")});
    m_titleBar = new oVIXTitleBar(menuBar(), buttons.minimize, buttons.maximize, buttons.close);
    connect(m_titleBar, &oVIXTitleBar::maximized, this, &SampleWindow::toggleMaximized);
}

oVIXTitleBar *SampleWindow::titleBar() const
{
    return m_titleBar;
}

void SampleWindow::toggleMaximized()
{
    // A new geometry takes the state away, and nobody is told.
    if (isMaximized()) {
        setWindowState(Qt::WindowNoState);
        setGeometry(m_normalGeometry);
    } else {
        m_normalGeometry = geometry();
        setGeometry(parentWidget()->rect());
        setWindowState(Qt::WindowMaximized);
    }
    m_titleBar->getCloseWidget()->setMaximized(isMaximized());
}

void SampleWindow::addSceneContent()
{
    auto *content = new QWidget(this);
    auto *list = new QListWidget(content);
    list->setStyleSheet(Sheets::nameList());
    list->setFixedWidth(listWidth);
    list->addItems({tr("Adults"), tr("Children"), tr("Cyclists"), tr("Staff"), tr("Trams")});
    list->setCurrentRow(1);

    auto *facts = new QGridLayout;
    facts->setHorizontalSpacing(16);
    facts->setVerticalSpacing(8);
    int row = 0;
    const auto addFact = [facts, &row](const QString &name, const QString &value) {
        facts->addWidget(createCaption(name, Qt::AlignLeft), row, 0);
        facts->addWidget(createValue(value), row, 1);
        ++row;
    };
    addFact(tr("Scene"), tr("Platform 4, morning"));
    addFact(tr("Actors"), u"240"_s);
    addFact(tr("Vehicles"), u"18"_s);
    addFact(tr("Length"), u"00:02:30"_s);
    addFact(tr("State"), tr("Baked"));
    facts->setColumnStretch(1, 1);
    facts->setRowStretch(row, 1);

    auto *layout = new QHBoxLayout(content);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(16);
    layout->addWidget(list);
    layout->addLayout(facts);
    setCentralWidget(content);
}

void SampleWindow::addWords(const QString &text)
{
    setCentralWidget(createCaption(text));
}

void SampleWindow::moveEvent(QMoveEvent *event)
{
    oVIXMainWindow::moveEvent(event);
    const QPoint inReach(std::clamp(x(), reach - width(), std::max(reach - width(), parentWidget()->width() - reach)),
                         std::clamp(y(), 0, std::max(0, parentWidget()->height() - reach)));
    if (inReach != pos())
        move(inReach);
}

SampleWindow *createDesk(QSize size, SampleWindow::Buttons buttons)
{
    auto *desk = new QWidget;
    desk->setObjectName(u"desk"_s);
    desk->setAttribute(Qt::WA_StyledBackground);
    desk->setStyleSheet(u"#desk { background-color:rgb(59,59,59); border-radius:4px; }"_s);
    desk->setFixedSize(size);
    auto *window = new SampleWindow(desk, buttons);
    window->setGeometry(desk->rect().adjusted(deskMargin, deskMargin, -deskMargin, -deskMargin));
    window->show();
    return window;
}
