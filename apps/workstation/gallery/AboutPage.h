#pragma once

#include "gallery/GalleryPage.h"

/// The about dialog on each of its tabs, and without its files; as pictures and on demand for real.
class AboutPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit AboutPage(QWidget *parent = nullptr);

private:
    Sample createSample(int tab, const QString &folder, const QString &caption);
};
