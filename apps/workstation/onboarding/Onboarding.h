#pragma once

#include "onboarding/TourSteps.h"

#include <QObject>
#include <QPointer>

class QSettings;
class QWidget;
class oVIXGuideOverlay;

/// What new users are shown: the question about usage data, then a tour of the window.
class Onboarding : public QObject
{
    Q_OBJECT

public:
    /// Belongs to @p window. @p settings keep whether the user wants to see the tour again; null forgets it.
    Onboarding(WorkstationWindow *window, QSettings *settings);
    ~Onboarding() override;

    /// Asks for the consent if it is time to, then shows the tour unless the user has asked not to see it again.
    void begin();
    /// Shows the tour of the page that the window shows; nothing while there is one.
    void showTour();
    /// Ends the tour, if there is one, and keeps whether it is wanted again.
    void endTour();

private:
    void showWantedTour();

    WorkstationWindow *m_window;
    QSettings *m_settings;
    TourSteps::Steps m_steps;
    QPointer<oVIXGuideOverlay> m_tour;
    QPointer<QWidget> m_focusBefore;
};
