#pragma once

#include "simulation/Bake.h"
#include "window/ViewOptions.h"

#include <QTimer>
#include <QWidget>

class OvixSvgButton;
class QLabel;
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

    /// Shows a scene as it has been read. One without a length gets one.
    void setScene(const Scene &scene, const CrowdSettings &settings);
    /// The scene as it is now, with all edits.
    const Scene &scene() const;
    /// Whether it differs from its file.
    bool isModified() const;
    /// Tells what the scene's file has now.
    void setSaved(const Scene &saved);
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
    /// Stops playing and goes on or back inside the crop. Nothing before anything is baked.
    void step(int frames);
    /// Makes the current frame the first one that plays.
    void startCropHere();
    /// Makes the current frame the last one that plays.
    void endCropHere();
    /// Lets all frames play.
    void clearCrop();

signals:
    void bakingChanged(bool isBaking);
    void modifiedChanged(bool isModified);

protected:
    void hideEvent(QHideEvent *event) override;

private:
    QWidget *createPlayer();
    void showCrowd();
    /// The crop shows as far as there are frames.
    void setFrames(int frames);
    void takeOverCrop();
    void updateModified();
    /// What the status line says after saving.
    QString savedNote() const;
    void showFacts();
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
    QLabel *m_unsaved;
    /// The people of the file; the view's scene has the crowd.
    Scene m_scene;
    Scene m_saved;
    bool m_isModified = false;
    QTimer m_playTimer;
    QTimer m_bakeTimer;
    Bake m_bake;
};
