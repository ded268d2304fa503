#pragma once

#include "gallery/GalleryPage.h"

#include <functional>

class SampleDialog;

/// Dialogs as pictures, and on demand for real.
///
/// They cannot be laid out on the page themselves: a dialog centres itself whenever it is shown or resized.
class DialogsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit DialogsPage(QWidget *parent = nullptr);

private:
    using SetUp = std::function<void(SampleDialog *)>;

    void addClosing();
    void addBlocked();
    void addBusy();
    Sample createSample(const QString &caption, const SetUp &setUp, const SetUp &stage = {});
    void open(const SetUp &setUp);
};
