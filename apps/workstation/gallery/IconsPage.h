#pragma once

#include "gallery/GalleryPage.h"

/// Every icon of the resource tree at the sizes in use, and how full the icon cache is.
class IconsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit IconsPage(QWidget *parent = nullptr);

private:
    void addFolder(const QString &folder);
};
