#include "frame/oVIXMinMaxCloseWidget.h"

#include "ui_oVIXMinMaxCloseWidget.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int rowHeight = 32;
constexpr int buttonSide = 32;
constexpr int closeMargin = 4;

} // namespace

oVIXMinMaxCloseWidget::oVIXMinMaxCloseWidget(bool showMinimize, bool showMaximize, bool showClose, QWidget *parent)
    : QWidget(parent), m_ui(new Ui::oVIXMinMaxCloseWidget)
{
    m_ui->setupUi(this);
    setFixedHeight(rowHeight);

    for (OvixSvgButton *button : {m_ui->btMin, m_ui->btMax, m_ui->btClose}) {
        button->setBackgroundVisible(true, true);
        button->setHoverVisible(true);
        button->setColorScheme(OvixSvgLabel::Black);
        button->setFixedSize(buttonSide, buttonSide);
    }
    m_ui->btMin->setFilename(u":/Windows/Minimize"_s);
    m_ui->btMin->setAccessibleName(tr("Minimize"));
    m_ui->btClose->setFilename(u":/Windows/Close"_s);
    m_ui->btClose->setAccessibleName(tr("Close"));
    m_ui->btClose->setMargins(closeMargin);
    setMaximized(false);

    m_ui->btMin->setVisible(showMinimize);
    m_ui->btMax->setVisible(showMaximize);
    m_ui->btClose->setVisible(showClose);

    connect(m_ui->btMin, &OvixSvgButton::clicked, this, &oVIXMinMaxCloseWidget::s_minimize);
    connect(m_ui->btMax, &OvixSvgButton::clicked, this, &oVIXMinMaxCloseWidget::s_maximize);
    connect(m_ui->btClose, &OvixSvgButton::clicked, this, &oVIXMinMaxCloseWidget::s_close);
}

oVIXMinMaxCloseWidget::~oVIXMinMaxCloseWidget() = default;

void oVIXMinMaxCloseWidget::setMaximized(bool maximized)
{
    m_ui->btMax->setFilename(maximized ? u":/Windows/Restore"_s : u":/Windows/Maximize"_s);
    m_ui->btMax->setAccessibleName(maximized ? tr("Restore") : tr("Maximize"));
}

void oVIXMinMaxCloseWidget::hideCloseButtons()
{
    for (OvixSvgButton *button : {m_ui->btMin, m_ui->btMax, m_ui->btClose})
        button->hide();
}

void oVIXMinMaxCloseWidget::insertWidget(QWidget *widget, int index)
{
    if (widget)
        m_ui->horizontalLayout_2->insertWidget(placeInRow(index), widget);
}

void oVIXMinMaxCloseWidget::insertItem(QLayoutItem *item, int index)
{
    if (item)
        m_ui->horizontalLayout_2->insertItem(placeInRow(index), item);
}

QSize oVIXMinMaxCloseWidget::sizeHint() const
{
    return QWidget::sizeHint().expandedTo(QSize(0, rowHeight));
}

int oVIXMinMaxCloseWidget::placeInRow(int index) const
{
    return std::min(index, m_ui->horizontalLayout_2->count());
}
