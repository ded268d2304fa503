#pragma once

#include "gallery/GalleryPage.h"

/// The title bar of main windows, its row of buttons, and the title strip of dialogs.
class TitleBarsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit TitleBarsPage(QWidget *parent = nullptr);

private:
    void addWindow();
    void addButtonSets();
    void addStates();
    void addButtonRows();
    void addDialogTitles();
};
