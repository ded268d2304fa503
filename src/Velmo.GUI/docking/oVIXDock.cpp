#include "docking/oVIXDock.h"

#include "docking/oVIXDockBar.h"
#include "foundation/SheetOnChange.h"
#include "frame/EdgeResize.h"
#include "frame/oVIXTitleBarFilter.h"

#include <QResizeEvent>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int headerHeight = 24;
constexpr int searchMinimumWidth = 240;
constexpr int gripInset = 2;
constexpr int gripThickness = 5;
constexpr int rightGripThickness = 3;

QString headerSheet()
{
    return u"QLabel {\tfont-family:\"default\";\tbackground-color:rgb(59,59,59);}QGroupBox{\tfont-size:11px;}"_s;
}

QString floatingSheet()
{
    return u"oVIXDock { border: 2px solid; background-color:rgb(59,59,59); }"_s;
}

} // namespace

oVIXDock::oVIXDock(QWidget *parent, QString name, bool hideClose, bool thumbnailAvailable, bool hideDetach,
                   QMainWindow *mainWindow)
{
    setObjectName(name);
    setParent(parent);
    build();
    m_dockBar->setParentWindow(mainWindow);
    if (hideClose)
        m_dockBar->hideClose();
    if (thumbnailAvailable)
        m_dockBar->thumbAvailable();
    if (hideDetach)
        m_dockBar->hideDock();
}

oVIXDock::~oVIXDock()
{
    delete m_titleBarFilter;
}

void oVIXDock::setWidget(QWidget *widget)
{
    QDockWidget::setWidget(widget);
    if (isFloating())
        placeGrips(); // above the new content
}

void oVIXDock::setTitle(QString title, QString subtitle, QString fontFamily, int pixelSize)
{
    m_dockBar->setTitle(u"  "_s + title.toUpper() + u": "_s, subtitle, fontFamily, pixelSize);
    setWindowTitle(title + u": "_s + subtitle);
}

void oVIXDock::changeSearchLabel(QString text)
{
    m_dockBar->setSearch(text);
}

void oVIXDock::setSearchEnabled(bool enabled)
{
    if (enabled)
        setMinimumWidth(std::max(minimumWidth(), searchMinimumWidth));
    m_dockBar->setSearchEnabled(enabled);
}

void oVIXDock::setSuggestionModel(QAbstractItemModel *model)
{
    m_dockBar->setSuggestionModel(model);
}

void oVIXDock::setHideSearchUntilHover(bool hide)
{
    m_dockBar->setHideSearchUntilHover(hide);
}

void oVIXDock::showDetachCloseOptions(bool show)
{
    m_dockBar->showDetachCloseOptions(show);
}

void oVIXDock::setThumbnailSize(int size)
{
    m_dockBar->setThumbnailSize(size);
}

int oVIXDock::getThumbnailSize() const
{
    return m_dockBar->getThumbnailSize();
}

oVIXDockBar *oVIXDock::getTitleWidget()
{
    return m_dockBar;
}

void oVIXDock::dockAtBottom()
{
    setAllowedAreas(Qt::BottomDockWidgetArea);
}

void oVIXDock::createTitleBar(QWidget *window)
{
    delete m_titleBarFilter;
    if (!window)
        return;
    m_titleBarFilter = new oVIXTitleBarFilter(m_dockBar, window);
    m_dockBar->installEventFilter(m_titleBarFilter);
}

void oVIXDock::closeTriggered()
{
    hide();
    emit closeClicked();
}

void oVIXDock::detachTriggered()
{
    setFloating(!isFloating());
}

void oVIXDock::fnSearch(QString text)
{
    emit s_search(text);
}

void oVIXDock::resizeByGrip(QPoint p, bool invert)
{
    if (!isMaximized())
        setGeometry(resizedByGrip(geometry(), p, invert, minimumSize()));
}

void oVIXDock::dockChanged()
{
    const bool floating = isFloating();
    for (oVIXGrip *grip : {m_bottomGrip.data(), m_leftGrip.data(), m_rightGrip.data()}) {
        if (grip)
            grip->setVisible(floating);
    }
    if (floating)
        placeGrips();
    // The panel's whole content is styled again by a new sheet.
    setSheetOnChange(this, floating ? floatingSheet() : QString());
}

/// The toolkit's own handling is left out on purpose.
void oVIXDock::resizeEvent(QResizeEvent *event)
{
    event->accept();
    if (isFloating())
        placeGrips();
}

void oVIXDock::build()
{
    setWindowFlags(Qt::FramelessWindowHint);
    setContentsMargins(0, 0, 0, 0);

    m_dockBar = new oVIXDockBar(this);
    m_dockBar->setFixedHeight(headerHeight);
    m_dockBar->setContentsMargins(0, 0, 0, 0);
    m_dockBar->setStyleSheet(headerSheet());
    setTitleBarWidget(m_dockBar);

    if (const QWidget *parent = parentWidget()) {
        QRect centred = geometry();
        centred.moveCenter(parent->geometry().center());
        setGeometry(centred);
    }
    setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);

    connect(this, &QDockWidget::topLevelChanged, this, &oVIXDock::dockChanged);
    connect(m_dockBar, &oVIXDockBar::closeClicked, this, &oVIXDock::closeTriggered);
    connect(m_dockBar, &oVIXDockBar::detachClicked, this, &oVIXDock::detachTriggered);
    connect(m_dockBar, &oVIXDockBar::thumbClicked, this, &oVIXDock::thumbClicked);
    connect(m_dockBar, &oVIXDockBar::s_search, this, &oVIXDock::fnSearch);
    connect(m_dockBar, &oVIXDockBar::s_clearoptions, this, &oVIXDock::s_clearoptions);

    m_bottomGrip = new oVIXGrip(this, oVIXGrip::Bottom, gripInset, gripThickness);
    m_leftGrip = new oVIXGrip(this, oVIXGrip::Left, gripInset, gripThickness);
    m_rightGrip = new oVIXGrip(this, oVIXGrip::Right, gripInset, rightGripThickness);
    for (oVIXGrip *grip : {m_bottomGrip.data(), m_leftGrip.data(), m_rightGrip.data()}) {
        grip->hide(); // until the panel floats
        connect(grip, &oVIXGrip::resizeByGrip, this, &oVIXDock::resizeByGrip);
    }
}

void oVIXDock::placeGrips()
{
    for (oVIXGrip *grip : {m_bottomGrip.data(), m_leftGrip.data(), m_rightGrip.data()}) {
        if (grip)
            grip->autoResize();
    }
}
