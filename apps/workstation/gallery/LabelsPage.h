#pragma once

#include "gallery/GalleryPage.h"

/// Labels and buttons: what clicks do, pictures that keep their shape, ready-made sheets, the application-wide sheet.
class LabelsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit LabelsPage(QWidget *parent = nullptr);

private:
    void addClickables();
    void addButtons();
    void addPictures();
    void addImageButtons();
    void addDropLists();
    void addApplicationSheet();
};
