#pragma once

#include "VelmoGuiExport.h"
#include "messages/oVIXGuideStep.h"

#include <QList>
#include <QPointer>
#include <QWidget>

#include <memory>

class QPropertyAnimation;

namespace Ui {
class oVIXGuideOverlay;
}

/// A guided tour over a window: the current step's picture, and in the middle its title and description, Back and Next
/// with a count between them, a box to tick against the next time, and a link that skips the rest.
///
/// The overlay covers its parent, follows the parent's size and shows above its other children. Around what the steps
/// draw, it is transparent. Whenever the user changes the step, the picture is revealed by a circle that grows from
/// the middle over one second; where the desktop or the style has animations switched off it appears at once. The first
/// step is not revealed until the application calls `revealStep` or sets the progress.
///
/// Escape skips, the arrow keys go back and on. While the overlay shows, Tab stays within it and mouse presses do not
/// reach the window below. Assistive tools are told each step.
///
/// The overlay is deleted when it is closed, but it does not close itself: the application does on `sgGuideFinished`,
/// and stores `isDontShowChecked`. Hiding it ends a running transition at once.
class VELMO_GUI_EXPORT oVIXGuideOverlay : public QWidget
{
    Q_OBJECT
    /// How much of the step's picture is revealed: see `setAnimationProgress`.
    Q_PROPERTY(
        float mAnimationProgress READ getAnimationProgress WRITE setAnimationProgress NOTIFY sgAnimationProgressChanged)

public:
    /// Without a parent, the overlay is a translucent window of its own.
    explicit oVIXGuideOverlay(QWidget *parent);
    ~oVIXGuideOverlay() override;

    /// Adds a step behind the others. Not owned; nothing for null.
    void addStep(oVIXGuideStep *step);

    /// 0, at which nothing is revealed, to 1, the whole picture. 0 at first.
    float getAnimationProgress() const;
    /// Repaints, and emits when the progress is another one. Below 0 counts as 0 in the picture; what is not a finite
    /// number is passed over.
    void setAnimationProgress(float progress);

    /// Whether the user has asked not to see the tour again.
    bool isDontShowChecked() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    /// Plays the transition of the current step from its start; one that runs stops before.
    void revealStep();

signals:
    /// The user has gone on from the last step, or has skipped.
    void sgGuideFinished();
    /// More or less of the step's picture is revealed.
    void sgAnimationProgressChanged(float progress);

private slots:
    /// Goes on, or finishes on the last step and without steps.
    virtual void onNextClicked();
    /// Goes back; nothing on the first step.
    virtual void onBackClicked();
    /// Finishes.
    virtual void onSkipClicked();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void follow(QWidget *parent);
    void updateStepInfo();
    void announceStep();
    void goToStep(int step);
    void stopTransition();
    bool takeKey(QKeyEvent *event);

    std::unique_ptr<Ui::oVIXGuideOverlay> m_ui;
    QPointer<QPropertyAnimation> m_transition;
    QList<oVIXGuideStep *> m_steps;
    int m_currentStep = 0;
    float m_animationProgress = 0.0F;
};
