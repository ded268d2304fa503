#include "onboarding/WidgetStep.h"

#include "onboarding/TourGround.h"

#include <QWidget>

#include <utility>

namespace {

constexpr int ringGap = 4;

QRect spotOf(const QWidget *widget, const QWidget *overlay)
{
    if (!widget || !widget->isVisible() || widget->window() != overlay->window())
        return {};
    const QRect place(overlay->mapFromGlobal(widget->mapToGlobal(QPoint())), widget->size());
    // The ring stays within the window.
    return place.marginsAdded({ringGap, ringGap, ringGap, ringGap}) & overlay->rect().adjusted(1, 1, -1, -1);
}

} // namespace

WidgetStep::WidgetStep(const QString &title, const QString &description, Finder find)
    : oVIXGuideStep(title, description), m_find(std::move(find))
{ }

void WidgetStep::paintStep(QPainter *painter, QWidget *overlay)
{
    TourGround::paint(painter, overlay, spotOf(m_find(), overlay));
}
