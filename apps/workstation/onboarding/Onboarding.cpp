#include "onboarding/Onboarding.h"

#include "window/WorkstationWindow.h"

#include <VelmoFeedbackConsentDialog.h>
#include <oVIXGuideOverlay.h>

#include <QSettings>

namespace {

constexpr auto dontShowKey = "tour/dontShow";

} // namespace

Onboarding::Onboarding(WorkstationWindow *window, QSettings *settings)
    : QObject(window), m_window(window), m_settings(settings)
{ }

Onboarding::~Onboarding()
{
    delete m_tour; // which looks at the steps
}

void Onboarding::begin()
{
    if (!VelmoFeedbackConsentDialog::isFeedbackRemeberNecessary()) {
        showWantedTour();
        return;
    }
    auto *dialog = new VelmoFeedbackConsentDialog(m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this, &Onboarding::showWantedTour);
    dialog->open();
}

void Onboarding::showTour()
{
    if (m_tour)
        return;
    m_steps = m_window->showsScene() ? TourSteps::ofScene(m_window) : TourSteps::ofStartScreen(m_window);
    m_focusBefore = m_window->focusWidget();
    m_tour = new oVIXGuideOverlay(m_window);
    for (const auto &step : m_steps)
        m_tour->addStep(step.get());
    connect(m_tour, &oVIXGuideOverlay::sgGuideFinished, this, &Onboarding::endTour);
    m_tour->show();
    m_tour->revealStep();
}

void Onboarding::endTour()
{
    if (!m_tour)
        return;
    if (m_settings && m_tour->isDontShowChecked())
        m_settings->setValue(dontShowKey, true);
    m_tour->close();
    m_tour.clear();
    if (m_focusBefore)
        m_focusBefore->setFocus();
}

void Onboarding::showWantedTour()
{
    if (!m_settings || !m_settings->value(dontShowKey).toBool())
        showTour();
}
