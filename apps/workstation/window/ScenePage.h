#pragma once

#include <QWidget>

class SceneView;
class StatusLine;
struct Scene;

/// The open scene: its view and a line about it.
class ScenePage : public QWidget
{
    Q_OBJECT

public:
    explicit ScenePage(QWidget *parent = nullptr);

    void setScene(const Scene &scene);
    const Scene &scene() const;

private:
    SceneView *m_view;
    StatusLine *m_facts;
};
