#pragma once

#include "gallery/GalleryPage.h"

class ProjectScenesSample;

/// The panel of a project's scenes in each of its states.
class ProjectScenesPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ProjectScenesPage(QWidget *parent = nullptr);

private:
    ProjectScenesSample *addPanel(const QString &title, const QString &note, QSize size);
    void addStates();
    void addModes();
    void addCounts();
    void addPreviews();
};
