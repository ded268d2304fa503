#include "docking/oVIXFloatingWidget.h"

#include "docking/PopupPlacement.h"
#include "foundation/FrameBorderSheet.h"
#include "foundation/VelmoPalette.h"

#include <QApplication>
#include <QCursor>
#include <QScreen>
#include <QStyleOption>
#include <QStylePainter>
#include <QTimer>
#include <QWindow>

namespace {

constexpr QLatin1String edgeColour("rgb(105,105,105)");

} // namespace

oVIXFloatingWidget::oVIXFloatingWidget(QWidget *parent) : oVIXFrameBorder(parent), m_hideTimer(new QTimer)
{
    connect(m_hideTimer, &QTimer::timeout, this, &oVIXFloatingWidget::hideTimerFinished);

    setWindowFlags(windowFlags() | Qt::ToolTip | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_MouseTracking);
    setAttribute(Qt::WA_TranslucentBackground); // outside the rounded corners
    setFocusPolicy(Qt::StrongFocus);
    setStyleSheet(frameBorderSheet(VelmoPalette::background, edgeColour));
}

oVIXFloatingWidget::~oVIXFloatingWidget()
{
    m_hideTimer->stop();
    m_hideTimer->deleteLater();
}

void oVIXFloatingWidget::showAt(const QPoint &globalPos)
{
    setGeometry(QRect(globalPos, size()));
    show();
    adjustSize();
    move(popupPlace(globalPos, size(), surroundings(globalPos)));
    raise();
    setFocus();
    activateWindow();
}

/// The toolkit does not paint the sheet's background of a translucent window.
void oVIXFloatingWidget::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    painter.drawPrimitive(QStyle::PE_Widget, option);
}

void oVIXFloatingWidget::showEvent(QShowEvent *event)
{
    oVIXFrameBorder::showEvent(event);
    if (QApplication::activeWindow() != this) // or else it is shown again straight after it was hidden
        m_activeBefore = QApplication::activeWindow();
    // Under X11 a window manager activates no window of this type; with the hint the toolkit takes the focus itself.
    // And it gives the focus back itself to the window that this one belongs to.
    if (QWindow *window = windowHandle()) {
        window->setFlag(Qt::X11BypassWindowManagerHint);
        if (m_activeBefore)
            window->setTransientParent(m_activeBefore->windowHandle());
    }
    m_hideTimer->start(DelayTimer);
    emit shown();
}

void oVIXFloatingWidget::setVisible(bool visible)
{
    if (!visible && QApplication::activeWindow() == this && m_activeBefore && m_activeBefore->isVisible())
        m_activeBefore->activateWindow();
    oVIXFrameBorder::setVisible(visible);
}

void oVIXFloatingWidget::hideEvent(QHideEvent *event)
{
    oVIXFrameBorder::hideEvent(event);
    m_hideTimer->stop();
    emit hidden();
}

void oVIXFloatingWidget::hideTimerFinished()
{
    if (holdsFocus() || holdsPointer())
        m_hideTimer->start(DelayTimer);
    else
        hide();
}

/// What the pop-up is kept inside, in global coordinates.
QRect oVIXFloatingWidget::surroundings(const QPoint &globalPos) const
{
    if (const QWidget *parent = parentWidget())
        return parent->isWindow() ? parent->geometry() : QRect(parent->mapToGlobal(QPoint(0, 0)), parent->size());
    const QScreen *screen = QGuiApplication::screenAt(globalPos);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect(globalPos, size());
}

bool oVIXFloatingWidget::holdsFocus() const
{
    const QWidget *widget = QApplication::focusWidget();
    while (widget && widget != this)
        widget = widget->parentWidget();
    return widget;
}

bool oVIXFloatingWidget::holdsPointer() const
{
    return QRect(mapToGlobal(QPoint(0, 0)), size()).contains(QCursor::pos());
}
