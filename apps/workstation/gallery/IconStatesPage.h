#pragma once

#include "gallery/GalleryPage.h"

/// What an icon label can look like: schemes and states, shapes, borders, shadows.
class IconStatesPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit IconStatesPage(QWidget *parent = nullptr);

private:
    void addSchemes();
    void addShapes();
    void addOpacity();
    void addShadows();
};
