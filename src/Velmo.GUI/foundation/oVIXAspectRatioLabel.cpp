#include "foundation/oVIXAspectRatioLabel.h"

#include <algorithm>
#include <limits>

oVIXAspectRatioLabel::oVIXAspectRatioLabel(QWidget *parent) : QLabel(parent)
{
    setMinimumSize(1, 1);
    setScaledContents(false);
}

oVIXAspectRatioLabel::~oVIXAspectRatioLabel() = default;

void oVIXAspectRatioLabel::setPixmap(const QPixmap &pixmap)
{
    m_source = pixmap;
    QLabel::setPixmap(scaledPixmap());
}

QPixmap oVIXAspectRatioLabel::scaledPixmap()
{
    if (m_source.isNull())
        return {};
    return m_source.scaled(size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

int oVIXAspectRatioLabel::heightForWidth(int width) const
{
    if (m_source.isNull())
        return height();
    const double fitting = double(qint64(m_source.height()) * width) / m_source.width();
    constexpr double largest = std::numeric_limits<int>::max();
    return int(std::clamp(fitting, -largest, largest));
}

QSize oVIXAspectRatioLabel::sizeHint() const
{
    return {width(), heightForWidth(width())};
}

void oVIXAspectRatioLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    if (!m_source.isNull())
        QLabel::setPixmap(scaledPixmap());
}
