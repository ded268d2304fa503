#pragma once

#include "VelmoGuiExport.h"

#include <QLabel>
#include <QPointer>

class QPropertyAnimation;

/// A thin yellow strip along the bottom edge of its parent that grows with a percentage.
///
/// It begins as a stub of one eleventh of the parent's width at 0 percent and is as wide as the parent at 100. Growth
/// glides for half a second, shrinking jumps. It follows its parent's size and is never narrower than 0; without a
/// parent its width is 0. It goes to the bottom edge when the parent is resized and when told so with `moveToBottom`.
class VELMO_GUI_EXPORT oVIXFloatingProgressBar : public QLabel
{
    Q_OBJECT

public:
    /// A strip of no width that follows @p parent.
    explicit oVIXFloatingProgressBar(QWidget *parent);
    ~oVIXFloatingProgressBar() override;

    /// Any number is taken; -10 and less show nothing.
    void setPercent(int percent);
    /// The percentage last set, 0 at first, also while the strip still grows.
    int getPercent() const;

    /// The strip's size at that percentage.
    QSize sizeFromPercent(int percent);
    /// Goes to the parent's bottom left corner.
    void moveToBottom();
    /// Stops growing where it is.
    void stopTween();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow(QWidget *parent);

    QPointer<QPropertyAnimation> m_tween;
    int m_percent = 0;
};
