#pragma once

#include "values/oVIXSliderWidget.h"

/// A slider widget that starts in the mode `SingleDouble`.
class VELMO_GUI_EXPORT oVIXDoubleSliderWidget : public oVIXSliderWidget
{
    Q_OBJECT

public:
    explicit oVIXDoubleSliderWidget(QWidget *parent = nullptr);
    ~oVIXDoubleSliderWidget() override;
};
