#pragma once

#include "gallery/GalleryPage.h"

#include <functional>

class VelmoMessageWidget;

/// Message boxes and the modal base dialog as pictures and on demand for real, and the bar that the boxes stand on.
class MessagesPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit MessagesPage(QWidget *parent = nullptr);

private:
    using SetUp = std::function<void(VelmoMessageWidget *)>;

    void addBars();
    void addKinds();
    void addCustom();
    void addTexts();
    void addModal();
    Sample createSample(const QString &caption, const QString &kind, const QString &title, const SetUp &setUp);

    QString m_name;
};
