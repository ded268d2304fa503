#include "start/ScenePreview.h"

#include "scenes/Delivery.h"
#include "scenes/SceneContentReader.h"
#include "window/SceneDrawing.h"

#include <QImage>
#include <QPainter>
#include <QThreadPool>

namespace {

/// Before the lists of scenes that wait for a thread.
constexpr int priority = 1;

bool isEmpty(const Scene &scene)
{
    return scene.ground.isEmpty() && scene.walls.isEmpty() && scene.people.isEmpty() && scene.vehicles.isEmpty();
}

QImage pictureOf(const Scene &scene, QSize size, double devicePixelRatio)
{
    QImage picture(size * devicePixelRatio, QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull())
        return {};
    picture.setDevicePixelRatio(devicePixelRatio);
    picture.fill(Qt::transparent);
    SceneDrawing drawing;
    drawing.setScene(scene);
    QPainter painter(&picture);
    drawing.paint(painter, drawing.toView(size, drawing.middle()));
    return picture;
}

} // namespace

ScenePreview::ScenePreview(QObject *parent) : QObject(parent)
{ }

ScenePreview::~ScenePreview()
{
    cancel();
}

void ScenePreview::draw(const QString &path, QSize size, double devicePixelRatio)
{
    cancel();
    m_delivery = std::make_shared<Delivery<ScenePreview>>(this);
    const auto work = [delivery = m_delivery, path, size, devicePixelRatio] {
        SceneContentReader reader;
        reader.isCancelled = [&delivery] { return !delivery->isWanted(); };
        Scene scene;
        QImage picture;
        if (reader.read(path, &scene) && !isEmpty(scene))
            picture = pictureOf(scene, size, devicePixelRatio);
        Delivery<ScenePreview>::post(delivery, [picture](ScenePreview *preview) {
            preview->m_delivery.reset();
            emit preview->drawn(picture);
        });
    };
    QThreadPool::globalInstance()->start(work, priority);
}

bool ScenePreview::isDrawing() const
{
    return m_delivery != nullptr;
}

void ScenePreview::cancel()
{
    if (m_delivery)
        m_delivery->close();
    m_delivery.reset();
}
