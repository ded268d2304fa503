#pragma once

#include <QPointer>

#include <array>

class OvixMovableLabel;
class QGraphicsOpacityEffect;
class QPropertyAnimation;

/// Lets the markers of a timebar appear and disappear together.
class MarkerFade
{
public:
    using Markers = std::array<OvixMovableLabel *, 3>;

    /// The markers cannot be seen from now on. Their effects belong to @p owner.
    MarkerFade(const Markers &markers, QObject *owner);

    /// That of the first marker, 0 to 1.
    double opacity() const;
    /// Whether there is anything to hide: a fade that begins at nothing counts.
    bool isSeen() const;

    /// From the opacity of now, in as much of the time as there is way left.
    void appear();
    void disappear();

private:
    void fadeTo(double target, int msecs);

    QObject *m_owner;
    std::array<QGraphicsOpacityEffect *, 3> m_opacities;
    std::array<QPointer<QPropertyAnimation>, 3> m_tweens;
    bool m_appearing = false;
};
