#include "values/oVIXDoubleSliderWidget.h"

oVIXDoubleSliderWidget::oVIXDoubleSliderWidget(QWidget *parent) : oVIXSliderWidget(parent)
{
    changeMode(SingleDouble);
}

oVIXDoubleSliderWidget::~oVIXDoubleSliderWidget() = default;
