#pragma once

#include "gallery/GalleryPage.h"

/// The slider widget in its modes and states, and the bar alone.
class SlidersPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit SlidersPage(QWidget *parent = nullptr);

private:
    void addModes();
    void addStates();
    void addRanges();
    void addLateralColours();
    void addPanel();
};
