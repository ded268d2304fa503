#include "browser/BrowserListWidget.h"

#include "browser/AccessibleBrowser.h"

#include <QScrollBar>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int minimumRowHeight = 16;

// clang-format off
QString scrollBarSheet()
{
    return u"QScrollBar:vertical {\twidth: 10px;\tbackground:rgb(59,59,59);   border-radius: 5px;}"
            "QScrollBar::handle:vertical {\tbackground:rgb(81,81,81);\tmargin:2;\tmin-height: 20px;}"
            "QScrollBar::handle:vertical:hover {\tbackground:rgb(116, 211, 252);}"
            "QScrollBar::handle:vertical:disabled {\tbackground:rgb(59,59,59);}"_s;
}
// clang-format on

} // namespace

BrowserListWidget::BrowserListWidget(QWidget *parent) : DeferredListWidget(parent)
{
    AccessibleBrowser::install();
    verticalScrollBar()->setStyleSheet(scrollBarSheet());
}

BrowserListWidget::~BrowserListWidget() = default;

void BrowserListWidget::addRow(QListWidgetItem *item, QWidget *row)
{
    row->setMinimumHeight(minimumRowHeight);
    item->setSizeHint(QSize(0, std::max(row->height(), minimumRowHeight)));
    setRowWidget(item, row);
}

void BrowserListWidget::select(QListWidgetItem *item)
{
    setCurrentItem(item);
    scrollToItem(item, QAbstractItemView::PositionAtCenter);
    m_centreWhenShown = !isVisible();
}

int BrowserListWidget::selectedRow(qsizetype count) const
{
    const QList<QListWidgetItem *> items = selectedItems();
    for (const QListWidgetItem *item : items) {
        const int row = this->row(item);
        if (row >= 0 && row < count)
            return row;
    }
    return -1;
}

void BrowserListWidget::showEvent(QShowEvent *event)
{
    DeferredListWidget::showEvent(event);
    const QList<QListWidgetItem *> items = selectedItems();
    if (std::exchange(m_centreWhenShown, false) && !items.isEmpty())
        scrollToItem(items.constFirst(), QAbstractItemView::PositionAtCenter);
}
