#pragma once

#include "gallery/GalleryPage.h"

/// Panels, their headers and the pop-ups that they open.
class DockingPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit DockingPage(QWidget *parent = nullptr);

private:
    void addHeaders();
    void addSearches();
    void addPopups();
    void addPanels();
};
