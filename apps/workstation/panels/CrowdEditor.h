#pragma once

#include "simulation/CrowdSettings.h"

#include <QWidget>

class QStandardItemModel;
class oVIXButton;
class oVIXPieChartWidget;
class oVIXSliderWidget;
struct Scene;

/// Edits what the crowd of a scene is made of.
class CrowdEditor : public QWidget
{
    Q_OBJECT

public:
    explicit CrowdEditor(QWidget *parent = nullptr);

    /// Starts with what the scene holds.
    void setScene(const Scene &scene);
    CrowdSettings settings() const;

    /// While a bake runs, the button ends it.
    void showBaking(bool isBaking);

signals:
    /// An edit is complete.
    void edited();
    void bakeClicked();

private:
    oVIXSliderWidget *addSlider(const QString &prefix, const QString &suffix);

    oVIXSliderWidget *m_count;
    oVIXSliderWidget *m_speed;
    oVIXSliderWidget *m_spacing;
    oVIXSliderWidget *m_seed;
    oVIXSliderWidget *m_turnRate;
    QStandardItemModel *m_shares;
    oVIXPieChartWidget *m_pie;
    oVIXButton *m_bake;
};
