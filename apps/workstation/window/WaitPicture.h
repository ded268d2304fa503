#pragma once

#include "look/MovingPicture.h"

#include <QWidget>

/// The animated picture above the busy mark of a wait overlay, for as long as that shows.
class WaitPicture : public QWidget
{
    Q_OBJECT

public:
    /// Follows the size of @p overlay, its parent.
    explicit WaitPicture(QWidget *overlay);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void moveAboveMark();

    MovingPicture m_picture;
};
