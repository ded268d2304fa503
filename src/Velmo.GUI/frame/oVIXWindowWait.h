#pragma once

#include "VelmoPercentListener.h"
#include "VelmoProgressListener.h"
#include "frame/oVIXWindowBlock.h"

#include <QElapsedTimer>
#include <QList>

#include <memory>

/// The dark pane with a turning busy mark, an optional line of progress text and an optional percentage.
///
/// Long operations report to it through the listener interfaces. Text and percent may be given from any thread;
/// everything else belongs to the GUI thread. A report from another thread only stores what it says. A report on the
/// GUI thread shows the overlay, repaints it and, at most every 50 ms, processes events except user input: afterwards
/// the overlay, its window and the caller's objects may be gone.
class VELMO_GUI_EXPORT oVIXWindowWait : public oVIXWindowBlock,
                                        public VelmoProgressListener,
                                        public VelmoPercentListener
{
    Q_OBJECT

public:
    /// How many pictures the busy mark has. Each shows for a third of a second.
    static constexpr int MovieFrames = 12;
    /// Milliseconds a picture, published for the application's own marks; the overlay does not use it.
    static constexpr int MovieFrameSpeedMsecs = 83;
    /// Columns of a sheet with the mark's pictures, published as well.
    static constexpr int MovieSlices = 4;
    /// Rows of such a sheet.
    static constexpr int MovieStacks = 3;

    /// An overlay over @p parent, without text or percentage.
    explicit oVIXWindowWait(QWidget *parent);
    ~oVIXWindowWait() override;

    /// Starts the busy mark and shows the overlay.
    void startWait();
    /// Hides the overlay, stops the busy mark and repaints the widgets to update.
    virtual void endWait();

    /// The line of text, from any thread. It shows with the next tick or report.
    void setText(QString text);
    /// The line of text, from any thread; empty at first.
    QString getText();
    /// Whether there is no text, from any thread.
    bool isTextEmpty();
    /// The percentage, from any thread, shown as it is given. It shows with the next tick or report.
    void setPercent(int percent);
    /// The percentage, from any thread; 0 at first.
    int getPercent();
    /// The same as `setPercent`.
    void percentEvent(int percent) override;

    /// Whether the line of text shows (default no). GUI thread.
    void setTextVisible(bool visible);
    /// See `setTextVisible`.
    bool isTextVisible() const;
    /// Whether the percentage shows (default no). GUI thread.
    void setPercentVisible(bool visible);
    /// See `setPercentVisible`.
    bool isPercentVisible() const;

    /// A widget that is repainted on every tick of the busy mark, every 50 ms. Not owned.
    void addWidgetToUpdate(QWidget *widget);

    /// True while the user holds Escape in this application.
    bool checkManualAbort();

    /// An empty text leaves the one before.
    void progressEvent(QString text) override;
    /// The same as `percentEvent`, after the listener's own.
    void progressEvent(int percent) override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

    /// Starts the 50 ms tick unless it runs.
    void startTicks();
    /// Lets the mark begin with its first picture.
    void rewindMovie();
    /// Whether the caller is on the thread of this widget.
    bool isOnGuiThread() const;

private:
    struct Reported;
    /// A line as it was last painted whole, and all that its letters may cover since.
    struct Line
    {
        QString painted;
        QRect area;
    };

    void stop();
    void repaintWidgetsToUpdate();
    int currentFrame() const;
    QRegion changedSincePaint();
    void drawMark(QPainter &painter) const;
    void paintLine(QPainter &painter, const QRegion &region, const QRect &lineBand, const QString &text,
                   Line &line) const;
    QString shownText();
    QString shownPercent();

    std::unique_ptr<Reported> m_reported;
    QList<QPointer<QWidget>> m_widgetsToUpdate;
    QElapsedTimer m_frameClock;
    QElapsedTimer m_eventsThrottle;
    double m_moviePosition = 0.0; // seconds
    double m_movieRate = 3.0; // frames a second
    int m_timerId = -1;
    int m_paintedFrame = -1;
    bool m_textVisible = false;
    bool m_percentVisible = false;
    bool m_reporting = false;
    Line m_textLine;
    Line m_percentLine;
};
