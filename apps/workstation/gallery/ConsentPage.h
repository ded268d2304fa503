#pragma once

#include "gallery/GalleryPage.h"

/// The feedback consent dialog with each of its answers, as pictures and on demand for real.
class ConsentPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ConsentPage(QWidget *parent = nullptr);

private:
    Sample createSample(int option, const QString &caption);
};
