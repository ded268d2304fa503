#include "values/MarkerFade.h"

#include "values/OvixMovableLabel.h"

#include <QGraphicsOpacityEffect>
#include <QPropertyAnimation>

namespace {

constexpr int appearMsecs = 500;
constexpr int disappearMsecs = 800;

} // namespace

MarkerFade::MarkerFade(const Markers &markers, QObject *owner) : m_owner(owner)
{
    for (size_t i = 0; i < markers.size(); ++i) {
        m_opacities[i] = new QGraphicsOpacityEffect(owner);
        m_opacities[i]->setOpacity(0.0);
        markers[i]->setGraphicsEffect(m_opacities[i]);
    }
}

double MarkerFade::opacity() const
{
    return m_opacities[0]->opacity();
}

bool MarkerFade::isSeen() const
{
    return opacity() > 0.0 || m_appearing;
}

void MarkerFade::appear()
{
    m_appearing = true;
    fadeTo(1.0, int((1.0 - opacity()) * appearMsecs));
}

void MarkerFade::disappear()
{
    m_appearing = false;
    fadeTo(0.0, int(opacity() * disappearMsecs));
}

/// One tween an effect: the one that runs is stopped, and with that deleted, before the next one starts.
void MarkerFade::fadeTo(double target, int msecs)
{
    for (size_t i = 0; i < m_opacities.size(); ++i) {
        if (m_tweens[i])
            m_tweens[i]->stop();
        auto *tween = new QPropertyAnimation(m_opacities[i], "opacity", m_owner);
        tween->setDuration(msecs);
        tween->setStartValue(m_opacities[i]->opacity());
        tween->setEndValue(target);
        tween->setEasingCurve(QEasingCurve::OutQuad);
        m_tweens[i] = tween;
        tween->start(QAbstractAnimation::DeleteWhenStopped);
    }
}
