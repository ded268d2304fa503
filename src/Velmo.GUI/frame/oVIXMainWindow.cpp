#include "frame/oVIXMainWindow.h"

#include "frame/EdgeResize.h"
#include "frame/UserAbort.h"
#include "frame/oVIXGrip.h"
#include "frame/oVIXWindowBlock.h"
#include "frame/oVIXWindowWaitGlobal.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QScreen>
#include <QSizeGrip>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

constexpr int edgeInset = 5;
constexpr int edgeThickness = 3;

} // namespace

oVIXMainWindow::oVIXMainWindow() : oVIXMainWindow(nullptr, nullptr)
{ }

oVIXMainWindow::oVIXMainWindow(QWidget *parent, QScreen *screen) : QMainWindow(parent), m_screen(screen)
{
    for (QPointer<QSizeGrip> *corner : {&m_bottomLeft, &m_bottomRight, &m_topLeft, &m_topRight}) {
        *corner = new QSizeGrip(this);
        (*corner)->setStyleSheet(u"background: transparent;"_s);
        (*corner)->setContentsMargins(0, 0, 0, 0);
    }
    constexpr std::array positions{oVIXGrip::Top, oVIXGrip::Bottom, oVIXGrip::Left, oVIXGrip::Right};
    for (size_t i = 0; i < positions.size(); ++i) {
        m_edges[i] = new oVIXGrip(this, positions[i], edgeInset, edgeThickness);
        connect(m_edges[i], &oVIXGrip::resizeByGrip, this, &oVIXMainWindow::resizeByGrip);
    }
    m_windowWait = new oVIXWindowWaitGlobal(this);
    m_windowWait->hide();
    m_windowBlock = new oVIXWindowBlock(this);
    m_windowBlock->move(0, 0);
    m_windowBlock->raise();
    m_windowBlock->hide();
    QCoreApplication::instance()->installEventFilter(this);
}

oVIXMainWindow::~oVIXMainWindow()
{
    // Events that still come must find no overlay.
    delete m_windowWait;
    delete m_windowBlock;
}

void oVIXMainWindow::startWaitEvent(bool)
{ }

void oVIXMainWindow::endWaitEvent()
{ }

void oVIXMainWindow::showWindowBlockEvent()
{ }

void oVIXMainWindow::hideWindowBlockEvent()
{ }

int oVIXMainWindow::gripSize() const
{
    return 5;
}

void oVIXMainWindow::updateSceneTabs()
{ }

bool oVIXMainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != this) // every event of the application passes here
        return false;
    if (event->type() == QEvent::WindowBlocked)
        showWindowBlock();
    else if (event->type() == QEvent::WindowUnblocked)
        hideWindowBlock();
    return QMainWindow::eventFilter(watched, event);
}

void oVIXMainWindow::setGripsEnabled(bool enabled)
{
    for (QSizeGrip *corner : {m_bottomLeft.data(), m_bottomRight.data(), m_topLeft.data(), m_topRight.data()}) {
        if (corner)
            corner->setEnabled(enabled);
    }
    for (oVIXGrip *edge : m_edges) {
        if (edge)
            edge->setEnabled(enabled);
    }
}

oVIXWindowBlock *oVIXMainWindow::getWindowBlock() const
{
    return m_windowBlock;
}

oVIXWindowWaitGlobal *oVIXMainWindow::getWindowWait() const
{
    return m_windowWait;
}

bool oVIXMainWindow::attemptMultipleTimes(int attempts, int sleepMsecs, const std::function<bool()> &attempt,
                                          bool *cancelled)
{
    if (cancelled)
        *cancelled = false;
    if (!attempt)
        return false;
    bool succeeded = false;
    for (int made = 0; made < attempts; ++made) {
        if (succeeded)
            return true;
        if (userHoldsEscape()) {
            if (cancelled)
                *cancelled = true;
            return false;
        }
        succeeded = attempt();
        if (sleepMsecs > 0)
            QThread::msleep(static_cast<unsigned long>(sleepMsecs));
    }
    return succeeded;
}

void oVIXMainWindow::startWait()
{
    startWaiting(false);
    if (m_windowWait)
        m_windowWait->progressEvent(QString());
}

void oVIXMainWindow::startWaitWithText()
{
    const QPointer<oVIXMainWindow> alive(this); // the start reports, and a report processes events
    startWait();
    if (!alive || !m_windowWait)
        return;
    m_windowWait->setText(QString());
    m_windowWait->setTextVisible(true);
}

void oVIXMainWindow::startWaitWithPercent()
{
    const QPointer<oVIXMainWindow> alive(this); // the start reports, and a report processes events
    startWait();
    if (!alive || !m_windowWait)
        return;
    m_windowWait->setPercent(0);
    m_windowWait->setPercentVisible(true);
}

void oVIXMainWindow::startWaitDelayed()
{
    startWaiting(true);
}

void oVIXMainWindow::endWait()
{
    if (!m_windowWait || !m_windowWait->isRunning())
        return;
    m_windowWait->endWait();
    endWaitEvent();
}

void oVIXMainWindow::showWindowBlock()
{
    // Not asked for as visible: in a window that is hidden meanwhile the overlay would never be taken away.
    if (!m_windowBlock || !m_windowBlock->isHidden())
        return;
    showWindowBlockEvent();
    if (m_windowBlock)
        m_windowBlock->show();
}

void oVIXMainWindow::hideWindowBlock()
{
    if (!m_windowBlock || m_windowBlock->isHidden())
        return;
    m_windowBlock->hide();
    hideWindowBlockEvent();
}

void oVIXMainWindow::resizeByGrip(QPoint p, bool invert)
{
    if (!isMaximized())
        setGeometry(resizedByGrip(geometry(), p, invert, minimumSize()));
}

void oVIXMainWindow::closeEvent(QCloseEvent *event)
{
    const QPointer<oVIXMainWindow> alive(this);
    emit closed();
    if (alive)
        event->accept();
}

void oVIXMainWindow::resizeEvent(QResizeEvent *event)
{
    event->accept();
    const int side = gripSize();
    const auto place = [side](QSizeGrip *corner, int x, int y) {
        if (corner)
            corner->setGeometry(x, y, side, side);
    };
    place(m_topLeft, 0, 0);
    place(m_topRight, width() - side, 0);
    place(m_bottomLeft, 0, height() - side);
    place(m_bottomRight, width() - side, height() - side);
    for (oVIXGrip *edge : m_edges) {
        if (edge)
            edge->autoResize();
    }
    QMainWindow::resizeEvent(event);
}

void oVIXMainWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    for (oVIXGrip *edge : m_edges) {
        if (edge)
            edge->raise();
    }
    for (QSizeGrip *corner : {m_topLeft.data(), m_topRight.data(), m_bottomLeft.data(), m_bottomRight.data()}) {
        if (corner)
            corner->raise();
    }
}

void oVIXMainWindow::startWaiting(bool delayed)
{
    const QPointer<oVIXMainWindow> alive(this);
    startWaitEvent(delayed);
    if (!alive || !m_windowWait)
        return;
    m_windowWait->startWait(delayed);
    m_windowWait->setTextVisible(false);
    m_windowWait->setPercentVisible(false);
}
