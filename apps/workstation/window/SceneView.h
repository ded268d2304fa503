#pragma once

#include "scenes/Scene.h"

#include <QWidget>

/// A scene seen from above, as large as fits: ground, walls, people and vehicles in the colours of their tags.
class SceneView : public QWidget
{
    Q_OBJECT

public:
    explicit SceneView(QWidget *parent = nullptr);

    void setScene(const Scene &scene);
    const Scene &scene() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    /// From metres to logical pixels.
    QTransform sceneToView() const;

    Scene m_scene;
};
