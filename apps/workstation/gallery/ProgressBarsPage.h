#pragma once

#include "gallery/GalleryPage.h"

/// Bars with bands, and strips along the bottom of panels.
class ProgressBarsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ProgressBarsPage(QWidget *parent = nullptr);

private:
    void addBars();
    void addFloatingBars();
};
