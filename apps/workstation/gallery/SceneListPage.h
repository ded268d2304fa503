#pragma once

#include "gallery/GalleryPage.h"

class VelmoScenesTable;

/// The scene list in each of its states.
class SceneListPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit SceneListPage(QWidget *parent = nullptr);

private:
    VelmoScenesTable *addTable(const QString &title, const QString &note, int width, int height);
    void addStates();
    void addRenaming();
    void addModes();
    void addMany();
    void addNames();
};
