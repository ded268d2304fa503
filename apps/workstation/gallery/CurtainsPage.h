#pragma once

#include "gallery/GalleryPage.h"

/// Curtains in each of their states.
class CurtainsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit CurtainsPage(QWidget *parent = nullptr);

private:
    void addStates();
    void addNested();
    void addTexts();
    void addLines();
};
