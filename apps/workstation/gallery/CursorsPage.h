#pragma once

#include "gallery/GalleryPage.h"

/// Every pointer as a picture with its hot spot; over a picture the pointer itself is that one.
class CursorsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit CursorsPage(QWidget *parent = nullptr);
};
