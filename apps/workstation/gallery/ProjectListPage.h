#pragma once

#include "gallery/GalleryPage.h"

/// The project list in each of its states.
class ProjectListPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ProjectListPage(QWidget *parent = nullptr);

private:
    void addStates();
    void addCounts();
    void addWidths();
};
