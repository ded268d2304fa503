#pragma once

#include "gallery/GalleryPage.h"

/// The segmented switch in each of its states.
class TogglesPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit TogglesPage(QWidget *parent = nullptr);
};
