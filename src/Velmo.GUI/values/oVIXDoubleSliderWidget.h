#pragma once

#include "values/oVIXSliderWidget.h"

/// A slider widget that starts in the mode `SingleDouble`.
class VELMO_GUI_EXPORT oVIXDoubleSliderWidget : public oVIXSliderWidget
{
    Q_OBJECT

public:
    /// As that of `oVIXSliderWidget`.
    explicit oVIXDoubleSliderWidget(QWidget *parent = nullptr);
    ~oVIXDoubleSliderWidget() override;
};
