#include "look/MovingPicture.h"

#include <NativeWindowApi.h>

#include <QPainter>
#include <QStyle>
#include <QWidget>

#include <utility>

namespace {

bool animates(const QWidget *widget)
{
    const NativeWindowApi &native = NativeWindowApi::instance();
    return widget && (!native.areAnimationsOn || native.areAnimationsOn())
        && widget->style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, widget) > 0;
}

} // namespace

MovingPicture::MovingPicture()
{
    m_player.setFileName(QStringLiteral(":/Animation/Crowd.webp"));
    QObject::connect(&m_player, &QAnimatedWebp::frameChanged, &m_player, [this] { showNext(); });
}

void MovingPicture::paint(QPainter *painter, const QRect &place, QWidget *widget)
{
    m_widget = widget;
    m_place = place;
    m_isPainted = true;
    if (!m_player.hasStarted() && (!m_player.hasImage() || animates(widget)))
        m_player.start();
    QImage image;
    m_player.getCurrentImage(&image);
    if (image.isNull())
        return;
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawImage(place, image);
}

void MovingPicture::showNext()
{
    const bool wasPainted = std::exchange(m_isPainted, false);
    if (!wasPainted || !animates(m_widget))
        m_player.stop();
    if (wasPainted && m_widget)
        m_widget->update(m_place);
}
