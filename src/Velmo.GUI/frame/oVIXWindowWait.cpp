#include "frame/oVIXWindowWait.h"

#include "foundation/InterFont.h"
#include "foundation/OvixSvgKey.h"
#include "foundation/OvixSvgRenderer.h"
#include "frame/UserAbort.h"

#include <QCoreApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QThread>
#include <QTimerEvent>

#include <algorithm>
#include <cmath>
#include <mutex>

using namespace Qt::StringLiterals;

namespace {

constexpr int tickMsecs = 50;
constexpr int eventsThrottleMsecs = 50;
constexpr int markSide = 128;
constexpr int fontPixelSize = 20;

QRect markRect(const QRect &pane)
{
    return {pane.width() / 2 - markSide / 2, pane.height() / 2 - markSide / 2, markSide, markSide};
}

/// From the first to the last row, both included.
QRect band(const QRect &pane, int firstRow, int lastRow)
{
    return {0, pane.height() / 2 + firstRow, pane.width(), lastRow - firstRow + 1};
}

QRect textBand(const QRect &pane)
{
    return band(pane, 76, 115);
}

QRect percentBand(const QRect &pane)
{
    return band(pane, -10, 9);
}

QFont lineFont()
{
    return interFont(fontPixelSize);
}

/// What a line covers of its band, with room for letters that lean out.
QRect lineArea(const QRect &lineBand, const QString &text)
{
    if (text.isEmpty())
        return {};
    const int width = std::min(QFontMetrics(lineFont()).horizontalAdvance(text) + fontPixelSize, lineBand.width());
    return {lineBand.x() + (lineBand.width() - width) / 2, lineBand.y(), width, lineBand.height()};
}

/// Whether some widget of the window is being painted.
bool isPainting(const QWidget *window)
{
    const auto inPaint = [](const QWidget *widget) { return widget->testAttribute(Qt::WA_WState_InPaintEvent); };
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    return inPaint(window) || std::any_of(widgets.cbegin(), widgets.cend(), inPaint);
}

/// Paints at once, or later when called out of a paint: one must not start inside another. Tells which.
bool repaintNow(QWidget *widget)
{
    if (isPainting(widget->window())) {
        widget->update();
        return false;
    }
    widget->repaint();
    return true;
}

} // namespace

/// What the operation has said, from whatever thread.
struct oVIXWindowWait::Reported
{
    std::mutex textMutex;
    QString text;
    std::mutex percentMutex;
    int percent = 0;
};

oVIXWindowWait::oVIXWindowWait(QWidget *parent) : oVIXWindowBlock(parent), m_reported(new Reported)
{
    m_frameClock.start();
    m_eventsThrottle.start();
}

oVIXWindowWait::~oVIXWindowWait()
{
    stop();
    // Not at once: what they are part of may be going, too.
    for (const QPointer<QWidget> &widget : std::as_const(m_widgetsToUpdate)) {
        if (widget)
            widget->update();
    }
}

void oVIXWindowWait::startWait()
{
    startTicks();
    if (isVisible())
        return;
    rewindMovie();
    show();
}

void oVIXWindowWait::endWait()
{
    stop();
    repaintWidgetsToUpdate();
}

void oVIXWindowWait::setText(QString text)
{
    const std::lock_guard lock(m_reported->textMutex);
    m_reported->text = text;
}

QString oVIXWindowWait::getText()
{
    const std::lock_guard lock(m_reported->textMutex);
    return m_reported->text;
}

bool oVIXWindowWait::isTextEmpty()
{
    return getText().isEmpty();
}

void oVIXWindowWait::setPercent(int percent)
{
    const std::lock_guard lock(m_reported->percentMutex);
    m_reported->percent = percent;
}

int oVIXWindowWait::getPercent()
{
    const std::lock_guard lock(m_reported->percentMutex);
    return m_reported->percent;
}

void oVIXWindowWait::percentEvent(int percent)
{
    setPercent(percent);
}

void oVIXWindowWait::setTextVisible(bool visible)
{
    m_textVisible = visible;
}

bool oVIXWindowWait::isTextVisible() const
{
    return m_textVisible;
}

void oVIXWindowWait::setPercentVisible(bool visible)
{
    m_percentVisible = visible;
}

bool oVIXWindowWait::isPercentVisible() const
{
    return m_percentVisible;
}

void oVIXWindowWait::addWidgetToUpdate(QWidget *widget)
{
    if (widget)
        m_widgetsToUpdate.append(widget);
}

bool oVIXWindowWait::checkManualAbort()
{
    return userHoldsEscape();
}

void oVIXWindowWait::progressEvent(QString text)
{
    if (!isOnGuiThread()) {
        if (!text.isEmpty())
            setText(text);
        return;
    }

    show();
    if (!text.isEmpty())
        setText(text);
    // A report must not process events inside another report, either.
    if (!repaintNow(this) || m_reporting || m_eventsThrottle.elapsed() < eventsThrottleMsecs)
        return;

    const QPointer<oVIXWindowWait> alive(this);
    m_reporting = true;
    m_eventsThrottle.restart();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (!alive)
        return;
    m_reporting = false;
    m_eventsThrottle.restart();
}

void oVIXWindowWait::progressEvent(int percent)
{
    VelmoProgressListener::progressEvent(percent);
    percentEvent(percent);
}

void oVIXWindowWait::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintBackground(painter);

    painter.setFont(lineFont());
    painter.setPen(Qt::white);

    const QRegion &region = event->region();
    const QRect mark = markRect(rect());
    if (region.intersects(mark))
        drawMark(painter);
    if (QRegion(mark & rect()).subtracted(region).isEmpty()) // painted in part, it still counts as changed
        m_paintedFrame = currentFrame();
    paintLine(painter, region, textBand(rect()), shownText(), m_textLine);
    paintLine(painter, region, percentBand(rect()), shownPercent(), m_percentLine);
}

void oVIXWindowWait::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timerId) {
        oVIXWindowBlock::timerEvent(event);
        return;
    }
    if (!isVisible())
        return;
    repaintWidgetsToUpdate();
    m_moviePosition = std::fmod(m_moviePosition + double(m_frameClock.restart()) / 1000.0, MovieFrames / m_movieRate);
    // Almost all of a full repaint is the widgets under the pane.
    const QRegion changed = changedSincePaint();
    if (!changed.isEmpty())
        update(changed);
}

void oVIXWindowWait::startTicks()
{
    if (m_timerId < 0)
        m_timerId = startTimer(tickMsecs, Qt::CoarseTimer);
}

void oVIXWindowWait::rewindMovie()
{
    m_moviePosition = 0.0;
}

bool oVIXWindowWait::isOnGuiThread() const
{
    return QThread::currentThread() == thread();
}

void oVIXWindowWait::stop()
{
    hide();
    if (m_timerId >= 0)
        killTimer(m_timerId);
    m_timerId = -1;
}

void oVIXWindowWait::repaintWidgetsToUpdate()
{
    const QList<QPointer<QWidget>> widgets = m_widgetsToUpdate; // a paint may add to them
    for (const QPointer<QWidget> &widget : widgets) {
        if (widget)
            repaintNow(widget);
    }
}

int oVIXWindowWait::currentFrame() const
{
    return std::clamp(int(m_moviePosition * m_movieRate), 0, MovieFrames - 1);
}

QRegion oVIXWindowWait::changedSincePaint()
{
    QRegion changed;
    if (currentFrame() != m_paintedFrame)
        changed += markRect(rect());
    const auto addLine = [&changed](const QRect &lineBand, const QString &text, const Line &line) {
        if (text != line.painted)
            changed += QRegion(line.area) + lineArea(lineBand, text);
    };
    addLine(textBand(rect()), shownText(), m_textLine);
    addLine(percentBand(rect()), shownPercent(), m_percentLine);
    return changed;
}

void oVIXWindowWait::drawMark(QPainter &painter) const
{
    OvixSvgKey key;
    key.devicePixelRatio = devicePixelRatio();
    key.size = QSize(markSide, markSide);
    key.layers = {{u":/Windows/Wait"_s, {}, {u"wait%1"_s.arg(currentFrame())}}};
    painter.drawPixmap(markRect(rect()).topLeft(), OvixSvgRenderer::get(key));
}

void oVIXWindowWait::paintLine(QPainter &painter, const QRegion &region, const QRect &lineBand, const QString &text,
                               Line &line) const
{
    const QRect area = lineArea(lineBand, text);
    if (region.intersects(area)) {
        const QString fitting = painter.fontMetrics().elidedText(text, Qt::ElideRight, lineBand.width());
        painter.drawText(lineBand, Qt::AlignHCenter | Qt::AlignVCenter, fitting);
    }
    // What has been painted only in part still counts as changed.
    line.area |= area;
    if (QRegion(line.area & rect()).subtracted(region).isEmpty())
        line = {text, area};
}

QString oVIXWindowWait::shownText()
{
    return m_textVisible ? getText() : QString();
}

QString oVIXWindowWait::shownPercent()
{
    return m_percentVisible ? u"%1%"_s.arg(getPercent()) : QString();
}
