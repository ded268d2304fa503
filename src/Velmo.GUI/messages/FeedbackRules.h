#pragma once

#include <QDate>
#include <QString>

/// What is stored about the feedback program, as texts.
namespace FeedbackRules {

enum class Choice { RemindLater, Yes, No };

constexpr QLatin1String dateForm("yyyy-MM-dd");

inline bool hasAgreed(const QString &enabled)
{
    return enabled == QLatin1String("1");
}

/// The date after which to ask again. Invalid when it is missing or is none.
inline QDate reminderDate(const QString &text)
{
    return QDate::fromString(text, dateForm);
}

/// A calendar month after @p today, at the latest the month's last day.
inline QString reminderAfter(QDate today)
{
    return today.addMonths(1).toString(dateForm);
}

/// What the dialog starts with.
inline Choice choiceOf(const QString &enabled, QDate reminder)
{
    if (hasAgreed(enabled))
        return Choice::Yes;
    return reminder.isValid() ? Choice::RemindLater : Choice::No;
}

/// On the date itself it is not yet time. A user who has declined is asked every time.
inline bool isTimeToAsk(QDate reminder, QDate today)
{
    return !reminder.isValid() || today > reminder;
}

} // namespace FeedbackRules
