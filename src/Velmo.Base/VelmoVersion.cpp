#include "VelmoVersion.h"

#include <QCoreApplication>

VelmoVersion::VelmoVersion(const QString &text) : m_number(QVersionNumber::fromString(text.trimmed()))
{ }

QString VelmoVersion::toString() const
{
    return m_number.toString();
}

bool VelmoVersion::operator<(const VelmoVersion &other) const
{
    return m_number.normalized() < other.m_number.normalized();
}

VelmoVersion VelmoVersion::current()
{
    const VelmoVersion application(QCoreApplication::applicationVersion());
    return application.m_number.isNull() ? VelmoVersion(QStringLiteral(VELMO_RELEASE)) : application;
}
