#pragma once

#include "gallery/GalleryPage.h"

/// The pie chart with few and many slices, and in each of its states.
class PieChartPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit PieChartPage(QWidget *parent = nullptr);

private:
    void addCounts();
    void addStates();
    void addSizes();
};
