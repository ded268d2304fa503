#pragma once

#include "gallery/GalleryPage.h"

#include <memory>
#include <vector>

class oVIXGuideStep;

/// The guided tour on its first, a middle and its last step, over a window. The buttons work.
class TourPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit TourPage(QWidget *parent = nullptr);
    ~TourPage() override;

private:
    QWidget *createTour(int step, float progress);

    std::vector<std::unique_ptr<oVIXGuideStep>> m_steps;
};
