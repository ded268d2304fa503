#pragma once

#include "gallery/GalleryPage.h"

#include <memory>

class QAnimatedLabel;
class QAnimatedWebp;
class QLabel;

/// Moving pictures: an animated file and sprite sheets. They stand on the first frame until they are started.
class AnimatedPicturesPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit AnimatedPicturesPage(QWidget *parent = nullptr);
    ~AnimatedPicturesPage() override;

protected:
    void hideEvent(QHideEvent *event) override;

private:
    void addFile();
    void addSheets();
    void showFrame(int number);
    void playFile(int minDelayMs);
    QAnimatedLabel *createSprite(const QPixmap &sheet, int stacks, int slices, int count, float speed);

    std::unique_ptr<QAnimatedWebp> m_player;
    bool m_playsOn = false;
    QLabel *m_picture = nullptr;
    QLabel *m_frameNumber = nullptr;
    QList<QAnimatedLabel *> m_sprites;
};
