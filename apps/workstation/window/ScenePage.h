#pragma once

#include "simulation/Bake.h"
#include "window/ViewOptions.h"

#include <QTimer>
#include <QWidget>

class OvixSvgButton;
class SceneView;
class StatusLine;
class oVIXFloatingProgressBar;
class oVIXTimebarWidget;

/// The open scene: its view, the timeline that plays what has been baked, and a line about it.
class ScenePage : public QWidget
{
    Q_OBJECT

public:
    explicit ScenePage(QWidget *parent = nullptr);

    void setScene(const Scene &scene, const CrowdSettings &settings);
    const Scene &scene() const;
    SceneView *view() const;
    oVIXTimebarWidget *timebar() const;
    const Bake &bake() const;

    /// Shows the crowd that these settings make of the scene. What has been baked is forgotten, unless they are the
    /// same as before.
    void setCrowd(const CrowdSettings &settings);
    /// Changes the scene's tags; what has been baked stays.
    void setTags(const QStringList &assigned, const QStringList &available);
    /// Bakes the crowd, or stops baking. Frames can be played while others are being baked. Frames that are there are
    /// replaced only after the user has been asked.
    void toggleBaking();
    /// Ends what runs in the background.
    void stopBaking();

    bool isPlaying() const;
    /// Plays from the current frame round and round inside the crop.
    void setPlaying(bool playing);
    /// Shows a frame that has been baked; as near to it as there is one.
    void goToFrame(int frame);

signals:
    void bakingChanged(bool isBaking);

protected:
    void hideEvent(QHideEvent *event) override;

private:
    QWidget *createPlayer();
    void showCrowd();
    /// The crop stays, as far as there are frames.
    void setFrames(int frames);
    /// Whether frames may be replaced. The page may be gone afterwards, and then they may not.
    bool askToReplaceFrames();
    void showBaked();
    void showFrame(int frame);
    void playNext();
    void takeOverPickedFrame();
    void finishBaking();

    SceneView *m_view;
    oVIXFloatingProgressBar *m_progress;
    oVIXTimebarWidget *m_timebar = nullptr;
    OvixSvgButton *m_playButton = nullptr;
    StatusLine *m_facts;
    /// The scene as its file has it; the view's has the crowd.
    Scene m_scene;
    CrowdSettings m_settings;
    QTimer m_playTimer;
    QTimer m_bakeTimer;
    Bake m_bake;
};
