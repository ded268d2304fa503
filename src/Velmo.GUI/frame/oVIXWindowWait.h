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
    /// Published for the application; the drawing does not use them. A frame of the mark shows for a third of a second.
    static constexpr int MovieFrames = 12;
    static constexpr int MovieFrameSpeedMsecs = 83;
    static constexpr int MovieSlices = 4;
    static constexpr int MovieStacks = 3;

    explicit oVIXWindowWait(QWidget *parent);
    ~oVIXWindowWait() override;

    /// Starts the busy mark and shows the overlay.
    void startWait();
    /// Hides the overlay, stops the busy mark and repaints the widgets to update.
    virtual void endWait();

    void setText(QString text);
    QString getText();
    bool isTextEmpty();
    void setPercent(int percent);
    int getPercent();
    void percentEvent(int percent) override;

    void setTextVisible(bool visible);
    bool isTextVisible() const;
    void setPercentVisible(bool visible);
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
    void rewindMovie();
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
