#include "messages/oVIXGuideStep.h"

#include <utility>

oVIXGuideStep::oVIXGuideStep(QString title, QString description)
    : m_title(std::move(title)), m_description(std::move(description))
{ }

oVIXGuideStep::oVIXGuideStep(const oVIXGuideStep &other) = default;

oVIXGuideStep &oVIXGuideStep::operator=(const oVIXGuideStep &other) = default;

oVIXGuideStep::~oVIXGuideStep() = default;

QString oVIXGuideStep::stepTitle() const
{
    return m_title;
}

QString oVIXGuideStep::stepDescription() const
{
    return m_description;
}
