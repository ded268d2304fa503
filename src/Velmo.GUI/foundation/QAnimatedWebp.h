#pragma once

#include "VelmoGuiExport.h"

#include <QElapsedTimer>
#include <QImage>
#include <QImageReader>
#include <QObject>
#include <QTimer>

#include <map>

/// Plays an animated picture file, WebP in practice, over and over, each frame for the time that it asks for.
///
/// It shows nothing itself: take the image when `frameChanged` comes. A frame is decoded when its turn comes, once, and
/// kept until another file is set, so a long animation of large frames takes its memory. Images share their pixels with
/// the kept ones. Frames that come late are made up for by the next ones; the time between `stop` and `start` counts as
/// such a delay too, so that the second frame after a break follows the first at once.
///
/// Every format that the toolkit's image reader knows can be played. WebP needs the reader's plug-in; without it, with
/// a file that is missing, cut off or no picture, or with a broken frame, the playback stops there without a word.
/// A picture that does not move comes once and stays; in a format for animations it is one of a single frame.
///
/// GUI thread only.
class VELMO_GUI_EXPORT QAnimatedWebp : public QObject
{
    Q_OBJECT

public:
    /// @p parent is not used: the player has no parent, and whoever makes it deletes it. It may be deleted from its
    /// own signal.
    explicit QAnimatedWebp(QObject *parent = nullptr);
    ~QAnimatedWebp() override;

    /// The file to play from the beginning, once `start` is called. Stops, and forgets every frame. The file is opened
    /// when its first frame is due. An empty name means no file.
    void setFileName(const QString &fileName);
    /// The least time that a frame is shown, in milliseconds; 0, the default, leaves it to the file. Frames that ask
    /// for no time then follow each other once a turn of the event loop. Negative values are as good as 0.
    void setMinDelayMs(int milliseconds);

    /// Goes on with the frame after the current one, at the next turn of the event loop.
    void start();
    /// Stays on the current frame.
    void stop();
    /// Between `start` and `stop`, also when there was nothing left to play.
    bool hasStarted() const;

    /// Whether a file name is set; the file need not be there.
    bool isValid() const;
    /// Whether there is a current frame. False after `setFileName` until the first frame has come.
    bool hasImage() const;
    /// Puts the current frame into @p image, or a null image when there is none. Nothing is copied but the reference to
    /// the pixels. A null pointer is ignored.
    void getCurrentImage(QImage *image) const;

signals:
    /// The frame with this number, from 0, is the current one. It is not emitted for frames that cannot be decoded.
    void frameChanged(int frameNumber);

private slots:
    void frameTimerTriggered();

private:
    struct CachedFrame
    {
        QImage image;
        int delay = 0;
    };

    const CachedFrame *currentFrame() const;
    void decodeUpToCurrent();

    std::map<int, CachedFrame> m_frames;
    QImageReader m_reader;
    QTimer m_frameTimer;
    QElapsedTimer m_elapsed;
    int m_current = -1;
    int m_framesRead = 0;
    bool m_started = false;
    int m_minDelay = 0;
};
