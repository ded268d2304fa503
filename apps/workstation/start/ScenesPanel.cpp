#include "start/ScenesPanel.h"

#include <VelmoScenesTable.h>

#include <QImage>
#include <QPixmap>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

ScenesPanel::ScenesPanel(QWidget *parent)
    : VelmoProjectScenesWidget(parent), m_place(findChild<QWidget *>(u"thumbnailLabel"_s))
{
    findChild<VelmoScenesTable *>()->setMultiSelectionEnabled(false);
    m_late.setSingleShot(true);
    m_late.setInterval(200ms);
    m_resized.setSingleShot(true);
    m_resized.setInterval(100ms);
    connect(&m_late, &QTimer::timeout, this, &ScenesPanel::clearPreview);
    connect(&m_resized, &QTimer::timeout, this, &ScenesPanel::draw);
    connect(&m_preview, &ScenePreview::drawn, this, &ScenesPanel::showPicture);
    clearPreview();
}

void ScenesPanel::showPreviewOf(const QString &path)
{
    if (path == m_path && !path.isEmpty())
        return;
    m_path = path;
    if (!path.isEmpty()) {
        m_late.start();
        draw();
        return;
    }
    m_preview.cancel();
    m_late.stop();
    m_resized.stop();
    clearPreview();
}

bool ScenesPanel::isDrawing() const
{
    return m_preview.isDrawing() || m_resized.isActive();
}

void ScenesPanel::resizeEvent(QResizeEvent *event)
{
    VelmoProjectScenesWidget::resizeEvent(event);
    if (!m_path.isEmpty())
        m_resized.start();
}

void ScenesPanel::draw()
{
    m_preview.draw(m_path, m_place->size(), devicePixelRatioF());
}

void ScenesPanel::showPicture(const QImage &picture)
{
    m_late.stop();
    if (picture.isNull())
        clearPreview();
    else
        setPreview(QPixmap::fromImage(picture));
}
