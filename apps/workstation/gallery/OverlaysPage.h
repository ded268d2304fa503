#pragma once

#include "gallery/GalleryPage.h"

class SampleJob;
class SampleWindow;

/// The panes over a window that must not be used: blocked, or busy.
class OverlaysPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit OverlaysPage(QWidget *parent = nullptr);

protected:
    void hideEvent(QHideEvent *event) override;

private:
    void addBlocks();
    void addWaits();
    void addRunningWait();
    void endWait();

    SampleWindow *m_window = nullptr;
    SampleJob *m_job = nullptr;
};
