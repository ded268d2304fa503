#include "frame/oVIXTitleBar.h"

#include "foundation/OvixSvgLabel.h"
#include "frame/AccessibleTitleBar.h"
#include "frame/oVIXMinMaxCloseWidget.h"

#include <QEvent>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace {

constexpr int captionLeft = 60;

// clang-format off
QString menuBarSheet()
{
    return u"QMenuBar {\tbackground-color:rgb(28,28,28);}"
            "QMenuBar::item {\theight: 32px;   padding-left: 8px;   padding-right: 8px; \tmargin-top: 10px;   border-radius: 3px;}"
            "QMenuBar::item:selected {\theight: 32px;\tcolor:rgb(116, 211, 252);\tbackground-color:rgb(65, 84, 92);\theight: 32px;}"_s;
}
// clang-format on

} // namespace

oVIXTitleBar::oVIXTitleBar(QMenuBar *menuBar, bool showMinimize, bool showMaximize, bool showClose)
    : oVIXTitleBarFilter(menuBar, menuBar ? menuBar->parentWidget() : nullptr), m_menuBar(menuBar)
{
    if (!menuBar)
        return;
    AccessibleTitleBar::install();
    menuBar->setMouseTracking(true);
    menuBar->setStyleSheet(menuBarSheet());
    m_closeWidget = new oVIXMinMaxCloseWidget(showMinimize, showMaximize, showClose, menuBar);
    connect(m_closeWidget, &oVIXMinMaxCloseWidget::s_minimize, this, &oVIXTitleBar::minimized);
    connect(m_closeWidget, &oVIXMinMaxCloseWidget::s_maximize, this, &oVIXTitleBar::maximized);
    connect(m_closeWidget, &oVIXMinMaxCloseWidget::s_close, this, &oVIXTitleBar::closed);
    menuBar->setCornerWidget(m_closeWidget, Qt::TopRightCorner);
    m_closeWidget->show();
    menuBar->installEventFilter(this);
}

oVIXTitleBar::~oVIXTitleBar() = default;

bool oVIXTitleBar::canClick(const QPoint &pos)
{
    return m_menuBar && !m_menuBar->childAt(pos) && !m_menuBar->actionAt(pos);
}

void oVIXTitleBar::maximize()
{
    emit maximized();
}

bool oVIXTitleBar::eventFilter(QObject *watched, QEvent *event)
{
    // The menu bar still gets events while it is destroyed, and is only a widget then.
    if (event->type() == QEvent::Resize && watched == titleWidget())
        repositionLabels();
    return oVIXTitleBarFilter::eventFilter(watched, event);
}

oVIXMinMaxCloseWidget *oVIXTitleBar::getCloseWidget()
{
    return m_closeWidget;
}

void oVIXTitleBar::setLogo(const QString &filename, const QSize &size)
{
    if (filename.isEmpty()) {
        if (m_logo)
            m_logo->hide();
        return;
    }
    if (!m_menuBar)
        return;
    if (!m_logo) {
        m_logo = new OvixSvgLabel(m_menuBar);
        m_logo->setAttribute(Qt::WA_TransparentForMouseEvents);
        m_logo->setImageShape(OvixSvgLabel::Stretch);
    }
    m_logo->setFilename(filename);
    m_logo->setFixedSize(size.expandedTo(QSize(0, 0)));
    m_logo->setMargins(0, 5, 0, 8);
    m_logo->update();
    m_logo->show();
    repositionLabels();
}

void oVIXTitleBar::repositionLabels()
{
    if (!m_menuBar)
        return;
    const int width = m_menuBar->width();
    const int height = m_menuBar->height();
    if (m_logo)
        m_logo->move(width / 2 - m_logo->width() / 2, height / 2 - m_logo->height() / 2);
    if (m_caption)
        m_caption->move(captionLeft, height / 2 - m_caption->height() / 2);
}
