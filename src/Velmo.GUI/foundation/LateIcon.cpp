#include "foundation/LateIcon.h"

#include <utility>

QIcon LateIcon::of(const std::function<QIcon()> &make)
{
    return QIcon(new LateIcon(make));
}

LateIcon::LateIcon(const std::function<QIcon()> &make) : m_make(make)
{ }

void LateIcon::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state)
{
    icon().paint(painter, rect, Qt::AlignCenter, mode, state);
}

QPixmap LateIcon::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    return icon().pixmap(size, 1.0, mode, state);
}

/// The engines of icons measure in pixels of the device here, icons do not.
QPixmap LateIcon::scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal scale)
{
    return icon().pixmap(size / scale, scale, mode, state);
}

QSize LateIcon::actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    return icon().actualSize(size, mode, state);
}

QList<QSize> LateIcon::availableSizes(QIcon::Mode mode, QIcon::State state)
{
    return icon().availableSizes(mode, state);
}

bool LateIcon::isNull()
{
    return icon().isNull();
}

QIconEngine *LateIcon::clone() const
{
    return new LateIcon(*this);
}

const QIcon &LateIcon::icon()
{
    if (const auto make = std::exchange(m_make, nullptr))
        m_icon = make();
    return m_icon;
}
