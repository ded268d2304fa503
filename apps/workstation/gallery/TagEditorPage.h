#pragma once

#include "gallery/GalleryPage.h"

/// The two-pane tag editor, to be used for real, and in its states.
class TagEditorPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit TagEditorPage(QWidget *parent = nullptr);

private:
    void addUses();
    void addStates();
};
