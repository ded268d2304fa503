#pragma once

#include "gallery/GalleryPage.h"

/// Choosers: combos, edits that complete, text buttons, and the plain line edit and title beside them.
class ChoosersPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ChoosersPage(QWidget *parent = nullptr);

private:
    void addCombos();
    void addEdits();
    void addButtons();
    void addPlain();
};
