#include "gallery/GalleryWindow.h"

#include "gallery/GalleryPages.h"
#include "look/Sheets.h"
#include "start/HeaderBar.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize startSize(1440, 860);
constexpr int listWidth = 200;

QScrollArea *createScrollArea(QWidget *parent)
{
    auto *area = new QScrollArea(parent);
    area->setStyleSheet(Sheets::clearScrollArea());
    area->verticalScrollBar()->setStyleSheet(Sheets::scrollBar());
    area->horizontalScrollBar()->setStyleSheet(Sheets::scrollBar());
    area->setWidgetResizable(true);
    return area;
}

} // namespace

GalleryWindow::GalleryWindow(QWidget *parent)
    : QWidget(parent), m_list(new QListWidget(this)), m_pages(new QStackedWidget(this))
{
    setObjectName(u"window"_s);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(Sheets::window());
    setWindowTitle(tr("Gallery"));
    resize(startSize);

    auto *header = new HeaderBar(this);
    header->setSubtitle(tr("Every widget of the library, in each of its states"));

    auto *panel = new QWidget(this);
    panel->setObjectName(u"panel"_s);
    panel->setAttribute(Qt::WA_StyledBackground);
    panel->setFixedWidth(listWidth);
    auto *panelLayout = new QVBoxLayout(panel);
    panelLayout->setContentsMargins(12, 12, 12, 12);
    panelLayout->addWidget(m_list);
    m_list->setStyleSheet(Sheets::nameList());
    m_list->setAccessibleName(tr("Pages"));

    auto *body = new QHBoxLayout;
    body->setContentsMargins(16, 0, 0, 0);
    body->setSpacing(0);
    auto *left = new QVBoxLayout;
    left->setContentsMargins(0, 16, 0, 16);
    left->addWidget(panel);
    body->addLayout(left);
    body->addWidget(m_pages, 1);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(header);
    layout->addLayout(body, 1);

    const QList<GalleryPages::Page> pages = GalleryPages::all();
    for (const GalleryPages::Page &page : pages) {
        m_list->addItem(page.title);
        m_pages->addWidget(createScrollArea(m_pages));
    }
    connect(m_list, &QListWidget::currentRowChanged, this, &GalleryWindow::showPage);
    openPage(0);
}

void GalleryWindow::openPage(int page)
{
    m_list->setCurrentRow(page);
}

void GalleryWindow::showPage(int page)
{
    auto *area = static_cast<QScrollArea *>(m_pages->widget(page));
    if (!area)
        return;
    if (!area->widget())
        area->setWidget(GalleryPages::all()[page].create());
    m_pages->setCurrentWidget(area);
}
