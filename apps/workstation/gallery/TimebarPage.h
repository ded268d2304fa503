#pragma once

#include "gallery/GalleryPage.h"

/// The timebar in its states, and the markers that it is made of.
class TimebarPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit TimebarPage(QWidget *parent = nullptr);

private:
    void addTimebars();
    void addMarkers();
};
