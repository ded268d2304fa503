#pragma once

#include "gallery/GalleryPage.h"

/// Tags of every kind, and the lists that show them.
class TagsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit TagsPage(QWidget *parent = nullptr);

private:
    void addChips();
    void addDropLists();
    void addTagLists();
};
