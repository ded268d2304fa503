#include "onboarding/PictureStep.h"

#include "onboarding/TourGround.h"

#include <QWidget>

namespace {

constexpr int gap = 24;

} // namespace

PictureStep::PictureStep(const QString &title, const QString &description) : oVIXGuideStep(title, description)
{ }

void PictureStep::paintStep(QPainter *painter, QWidget *overlay)
{
    TourGround::paint(painter, overlay, {});
    QRect place(QPoint(), MovingPicture::Size);
    place.moveCenter(overlay->rect().center());
    place.moveBottom(TourGround::controlsOf(overlay).top() - gap);
    m_picture.paint(painter, place, overlay);
}
