#include "frame/oVIXDialog.h"

#include "frame/DialogPlacement.h"
#include "frame/NativeWindowApi.h"
#include "frame/oVIXDialogTitle.h"
#include "frame/oVIXWindowWait.h"

#include <QDebug>
#include <QGuiApplication>
#include <QLayout>
#include <QScreen>

using namespace Qt::StringLiterals;

oVIXDialog::oVIXDialog(bool withBlock, bool withWait, bool stayOnTop, QWidget *parent, QScreen *screen)
    : QDialog(parent,
              Qt::Dialog | Qt::FramelessWindowHint | (stayOnTop ? Qt::WindowStaysOnTopHint : Qt::WindowFlags())),
      m_primaryScreen(screen)
{
    setSizeGripEnabled(false);
    setStyleSheet(u"oVIXDialog {\tbackground:rgb(39,39,39);}"_s); // before it would restyle children
    m_title = new oVIXDialogTitle(this);
    m_title->move(0, 0);
    connect(m_title, &oVIXDialogTitle::closeClicked, this, &oVIXDialog::reject);
    setupTitle(tr("DIALOG"), tr("Untitled"));
    if (withBlock) {
        m_windowBlock = new oVIXWindowBlock(this);
        m_windowBlock->hide();
    }
    if (withWait) {
        m_windowWait = new oVIXWindowWait(this);
        m_windowWait->hide();
    }
    installEventFilter(this);
}

oVIXDialog::~oVIXDialog() = default;

void oVIXDialog::setupTitle(QString title, QString subtitle)
{
    m_title->setTitle(title, subtitle);
}

void oVIXDialog::setDragEnabled(bool enabled)
{
    m_title->setDragEnabled(enabled);
}

void oVIXDialog::setCloseEnabled(bool enabled)
{
    m_closeEnabled = enabled;
    m_title->setCloseEnabled(enabled);
}

QScreen *oVIXDialog::getPrimaryScreen() const
{
    return m_primaryScreen;
}

void oVIXDialog::setPrimaryScreen(QScreen *screen)
{
    m_primaryScreen = screen;
}

oVIXWindowWait *oVIXDialog::getWindowWait()
{
    return m_windowWait;
}

void oVIXDialog::startWait()
{
    startWaiting(false, false);
}

void oVIXDialog::startWaitWithText()
{
    startWaiting(false, true);
}

void oVIXDialog::startWaitWithPercent()
{
    startWaiting(true, false);
}

void oVIXDialog::endWait()
{
    if (m_windowWait)
        m_windowWait->endWait();
}

void oVIXDialog::reject()
{
    if (!m_closeEnabled)
        return;
    if (m_windowBlock && m_windowBlock->isVisible())
        return;
    if (m_windowWait && m_windowWait->isVisible())
        return;
    QDialog::reject();
}

QScreen *oVIXDialog::detectPrimaryScreen(void *nativeWindow)
{
    QScreen *primary = QGuiApplication::primaryScreen();
    const NativeWindowApi &native = NativeWindowApi::instance();
    if (!native.monitorRectOfWindow || !nativeWindow)
        return primary;

    int x = 0;
    int y = 0;
    if (!native.monitorRectOfWindow(nativeWindow, &x, &y, nullptr, nullptr)) {
        qDebug("Unable to get monitor from window handle");
        return primary;
    }
    const QList<QScreen *> screens = QGuiApplication::screens();
    QList<QRect> geometries;
    for (const QScreen *screen : screens)
        geometries << screen->geometry();
    const int nearest = nearestTopLeft(geometries, QPoint(x, y));
    return nearest < 0 ? primary : screens[nearest];
}

bool oVIXDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == this && m_windowBlock) {
        if (event->type() == QEvent::WindowBlocked)
            m_windowBlock->show();
        else if (event->type() == QEvent::WindowUnblocked)
            m_windowBlock->hide();
    }
    return QDialog::eventFilter(watched, event);
}

void oVIXDialog::setVisible(bool visible)
{
    // A window that is placed while it is being shown is not where the toolkit takes it to be on every system.
    if (visible && !isVisible())
        prepareToShow();
    QDialog::setVisible(visible);
}

void oVIXDialog::showEvent(QShowEvent *event)
{
    adjustToTitle();
    autocenter();
    QDialog::showEvent(event);
}

void oVIXDialog::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    m_title->setFixedWidth(width());
    autocenter();
}

void oVIXDialog::prepareToShow()
{
    ensurePolished();
    if (!testAttribute(Qt::WA_Resized)) {
        adjustSize();
        setAttribute(Qt::WA_Resized, false); // its content may have grown until the next time
    }
    adjustToTitle();
    autocenter();
}

void oVIXDialog::adjustToTitle()
{
    if (m_titleAdjusted || !layout())
        return;
    QMargins margins = layout()->contentsMargins();
    margins.setTop(margins.top() + m_title->height());
    layout()->setContentsMargins(margins);
    setFixedHeight(height() + m_title->height());
    m_titleAdjusted = true;
}

void oVIXDialog::autocenter()
{
    const QScreen *screen = m_primaryScreen ? m_primaryScreen.data() : QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const QRect available = screen->availableGeometry();
    QPoint centre = available.center();
    if (parentWidget()) {
        const QWidget *window = parentWidget()->window();
        centre = window->mapToGlobal(window->rect().center());
    }
    move(centredOn(centre, size(), available));
}

void oVIXDialog::startWaiting(bool percentVisible, bool textVisible)
{
    if (!m_windowWait)
        return;
    m_windowWait->setPercentVisible(percentVisible);
    m_windowWait->setTextVisible(textVisible);
    m_windowWait->startWait();
    m_windowWait->progressEvent(QString());
}
