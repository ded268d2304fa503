#pragma once

#include <QObject>
#include <QSize>

#include <memory>

class QImage;
class QString;
template <class Receiver> class Delivery;

/// Draws in the background what a scene file holds. It may be deleted at any
/// time.
class ScenePreview : public QObject
{
    Q_OBJECT

public:
    explicit ScenePreview(QObject *parent = nullptr);
    ~ScenePreview() override;

    /// Reads the file and draws the whole scene into a picture of @p size logical
    /// pixels. `drawn` follows, unless something else is asked for or `cancel` is
    /// called before.
    void draw(const QString &path, QSize size, double devicePixelRatio);
    void cancel();
    bool isDrawing() const;

signals:
    /// Null when the file cannot be read, or has nothing that could be seen.
    void drawn(const QImage &picture);

private:
    std::shared_ptr<Delivery<ScenePreview>> m_delivery;
};
