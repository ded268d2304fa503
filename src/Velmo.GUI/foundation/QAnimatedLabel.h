#pragma once

#include "VelmoGuiExport.h"

#include "foundation/QClickableLabel.h"

#include <QElapsedTimer>
#include <QList>
#include <QPixmap>

/// A clickable label that plays a sprite sheet: one picture cut into a grid of equal frames.
///
/// The timer's interval says how often the label looks at the clock, the speed how many frames pass in a second; the
/// two are independent. While the label is hidden it stands still and its timer rests; shown again, it catches up with
/// the time that has passed.
///
/// What the label shows otherwise (a text, a picture of its own) stays until frames are shown over it. A sheet of one
/// frame is never shown by the label itself.
class VELMO_GUI_EXPORT QAnimatedLabel : public QClickableLabel
{
    Q_OBJECT
    // For forms; see the setters.
    Q_PROPERTY(float speed MEMBER m_speed WRITE setSpeed)

public:
    /// A label without frames, standing still.
    explicit QAnimatedLabel(QWidget *parent = nullptr, Qt::WindowFlags flags = {});
    /// The same, showing @p text until frames are shown.
    explicit QAnimatedLabel(const QString &text, QWidget *parent = nullptr, Qt::WindowFlags flags = {});
    ~QAnimatedLabel() override;

    /// Cuts @p sheet into @p stacks rows of @p slices frames, of which the first @p count are used, row by row from the
    /// top left, and shows the first one. A count below 1 means all. The frames keep the sheet's device pixel ratio;
    /// pixels that are left over at the right and at the bottom are not used. Frames beyond the sheet, and all frames
    /// of a null sheet or of one with fewer pixels than frames to a side, are empty pictures.
    ///
    /// Frames of a longer sheet that was set before are kept behind these. A number of rows or columns below 1, or more
    /// than 65,536 frames, changes nothing.
    void setStacksAndSlices(const QPixmap &sheet, int stacks, int slices, int count);
    /// Frames a second, 1 by default. Below 0 it plays backwards and stays on the first frame. A value that is not a
    /// finite number is ignored.
    void setSpeed(float framesPerSecond);

    /// Plays on from the current position, looking at the clock every @p interval milliseconds. A negative interval is
    /// ignored.
    void play(int interval);
    /// Stands still.
    void pause();
    /// Stands still on the first frame.
    void stop();
    /// Between `play` and `pause`, `stop` or `setSingle`, hidden or not.
    bool isPlaying() const;
    /// Stands still and forgets the grid: `play` shows no more than the first frame until another sheet is set.
    void setSingle();

signals:
    /// The label has set the pixmap of a frame, the same one as before or another.
    void frameUpdated();

protected:
    void timerEvent(QTimerEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void startTicking();
    void stopTicking();
    void stopPlaying();
    void updatePixmap();

    int m_interval = -1; // below 0: not playing
    int m_timerId = -1;
    int m_count = 0;
    float m_position = 0.0F; // in frames
    float m_speed = 1.0F;
    QElapsedTimer m_elapsed;
    QList<QPixmap> m_frames;
};
