#pragma once

#include "VelmoGuiExport.h"

#include <QFrame>

#include <array>
#include <memory>

class MarkerFade;
class OvixMovableLabel;
class QTimer;
struct Crop;

namespace Ui {
class oVIXTimebarWidget;
}

/// The frame timeline of the player: a thin bar of the frames from 0 to a maximum that shows what has been computed
/// (cached), a crop range and the current play frame, below three markers for the current time and both ends of the
/// crop. Markers fade in while the pointer is over the timebar and out three seconds after it has left; unseen, they
/// still take the mouse. They can be dragged, and edited by a double click. A marker that the application gives a focus
/// policy is in sight while it has the keyboard, and Space and Return edit it.
///
/// The application gives the frames; the timebar keeps them consistent: the play value is never beyond what is cached
/// and stays inside the crop. A frame picked by the user (a click on the bar, a drag or an edit of the current marker)
/// blocks every change of the play value until the application has taken it over and calls `unblock`.
///
/// All values are frames. The timebar is 40 logical pixels high. A signal is the last thing that a change does, so the
/// timebar may be deleted from it; with `deleteLater` while the user edits a marker, for the end of the edit may come
/// from another of its markers that takes the keyboard.
class VELMO_GUI_EXPORT oVIXTimebarWidget : public QFrame
{
    Q_OBJECT
    // For forms; see the setters.
    Q_PROPERTY(int maxValue READ getMax WRITE setMaxValue)
    Q_PROPERTY(bool clickable READ isClickable WRITE setClickable)

public:
    /// A timebar from 0 to 100 with nothing cached.
    explicit oVIXTimebarWidget(QWidget *parent = nullptr);
    ~oVIXTimebarWidget() override;

    /// The last frame, 100 at first. Play value and cached value go to 0, the markers to 0, 0 and the last frame; the
    /// crop values stay. A negative one is ignored.
    void setMaxValue(int maximum);
    /// The last frame.
    int getMax() const;
    /// The last frame that has been computed. Ignored beyond the maximum plus one. Shows with the next
    /// `setPlayWidgetFrame`.
    void updateCachedValue(int frame);
    /// The last frame that has been computed, 0 at first.
    int getCached() const;

    /// Asks for a play frame. The play value takes it when it has been computed; the marker goes there anyway.
    void setPlayWidgetFrame(int frame);
    /// The play value, 0 at first.
    int getTimeValue() const;
    /// The same.
    int getCurrentPlayValue() const;
    /// The frame last picked by the user, 0 at first.
    int getSelectedValue() const;
    /// Lets the play value change again after the user has picked a frame.
    void unblock();

    /// Both ends in any order, from the first frame to 100 at first. They may be beyond the maximum.
    void setCropValues(int first, int second);
    /// The crop's first frame.
    int getCropStartValue() const;
    /// The crop's last frame.
    int getCropEndValue() const;
    /// The crop's start as a share of the maximum; 0 with a maximum of 0.
    float getCropStartPos() const;
    /// The same for the crop's end.
    float getCropEndPos() const;
    /// Takes a current marker outside the crop, and the play value with it, to the crop's start. From its end too:
    /// playing loops inside the crop.
    void constrainPlayTimeToCropValues();

    /// The frame where playing begins, as a share of the maximum of now.
    void setPlayStart(float share);
    /// The frame where playing begins, 0 at first.
    int getPlayStart() const;

    /// Shows or hides both crop markers; the crop stays.
    void showCrops(bool show);
    /// Whether clicks on the bar pick frames (default yes), and whether the current marker shows. Yes also shows the
    /// crop markers.
    void setClickable(bool clickable);
    /// See `setClickable`.
    bool isClickable() const;

    /// Fits the markers' ways to the width. Done at every resize.
    void updateMinMaxValues();

signals:
    /// The user has picked a frame: see `getSelectedValue` and `unblock`.
    void s_valuePicked();
    /// The user has moved an end of the crop.
    void s_cropChanged();

public slots:
    /// Takes the frame that a click on the bar has picked, blocks the play value and emits `s_valuePicked`.
    void timeSelected();
    /// The same with the frame of the current marker, which is being dragged.
    void timeDragChange();
    /// The drag has ended: takes the current marker to the play value.
    void timeDragReleased();
    /// The current marker is being edited: keeps the markers in sight.
    void timeLabelEditStarted();
    /// The edit has ended: picks the frame that was typed, as a drag does, unless the edit was given up.
    void timeLabelEditFinished();
    /// Starts the crop where its left marker has been dragged to, takes the right one along when that has been passed,
    /// and emits `s_cropChanged`.
    void leftCropChanged();
    /// The left crop marker is being edited: keeps the markers in sight.
    void leftCropEditStarted();
    /// The edit has ended: starts the crop at the frame that was typed, as a drag does, unless the edit was given up.
    void leftCropEditFinished();
    /// Ends the crop where its right marker has been dragged to, takes the left one along when that has been passed,
    /// and emits `s_cropChanged`.
    void rightCropChanged();
    /// The right crop marker is being edited: keeps the markers in sight.
    void rightCropEditStarted();
    /// The edit has ended: ends the crop at the frame that was typed, as a drag does, unless the edit was given up.
    void rightCropEditFinished();
    /// The drag of a crop marker has ended: takes both to the ends of the crop.
    void cropDragReleased();
    /// Fades the markers out, unless the user drags or edits one.
    void hideLabels();
    /// Fades the markers in.
    void showLabels();

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::array<OvixMovableLabel *, 3> markers() const;
    void connectMarkers();
    void setCurrentPlayValue(int frame);
    void updateBar();
    void fitToWidth();
    void pickMarkerFrame(bool interacting);
    void applyCrop(const Crop &crop, bool interacting);
    void applyLeftCrop(bool interacting);
    void applyRightCrop(bool interacting);
    void endInteraction();
    void hideLaterIfLeft();
    bool holdsKeyboard() const;
    bool isPointerInside() const;

    std::unique_ptr<Ui::oVIXTimebarWidget> m_ui;
    std::unique_ptr<MarkerFade> m_fade;
    QTimer *m_hideTimer;
    int m_playValue = 0;
    int m_cachedValue = 0;
    int m_maximum = 0;
    int m_selectedValue = 0;
    int m_cropStart = 0;
    int m_cropEnd = 0;
    int m_playStart = 0;
    bool m_blocked = false;
    bool m_interacting = false;
};
