#pragma once

#include "look/MovingPicture.h"

#include <oVIXGuideStep.h>

/// A step with the application's animated picture above its texts, on a dark window.
class PictureStep : public oVIXGuideStep
{
public:
    PictureStep(const QString &title, const QString &description);

    void paintStep(QPainter *painter, QWidget *overlay) override;

private:
    MovingPicture m_picture;
};
