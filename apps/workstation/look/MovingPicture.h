#pragma once

#include <QAnimatedWebp.h>

#include <QPointer>
#include <QRect>

class QPainter;
class QWidget;

/// The application's animated picture, for whoever paints it. It plays for as long as it is painted, and rests on its
/// first frame where the desktop's animations are switched off. Nothing is drawn by a build without the animation, and
/// where the toolkit cannot read it.
class MovingPicture
{
public:
    /// As it is meant to be shown.
    static constexpr QSize Size{240, 135};

    MovingPicture();

    /// Draws the current frame on @p widget, and has @p place repainted when the next one comes.
    void paint(QPainter *painter, const QRect &place, QWidget *widget);

private:
    void showNext();

    QAnimatedWebp m_player;
    QPointer<QWidget> m_widget;
    QRect m_place;
    bool m_isPainted = false; // since the last frame
};
