#pragma once

#include <oVIXGuideStep.h>

#include <functional>

/// A step that points at a widget of the window: everything else is dark.
class WidgetStep : public oVIXGuideStep
{
public:
    using Finder = std::function<const QWidget *()>;

    /// @p find is asked at every repaint. When it finds nothing, or what is hidden or in another window, the step shows
    /// its texts on the dark alone.
    WidgetStep(const QString &title, const QString &description, Finder find);

    void paintStep(QPainter *painter, QWidget *overlay) override;

private:
    Finder m_find;
};
