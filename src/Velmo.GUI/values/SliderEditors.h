#pragma once

#include "values/oVIXSliderWidget.h"

#include <QList>

class QDoubleSpinBox;
class QSpinBox;

/// The number boxes of a slider widget, and what its mode makes of them.
///
/// A number given to the boxes goes to every one that can hold it; a number asked for comes from those that the mode
/// shows. Integer boxes take numbers without their fraction, and each takes the nearest that it can hold. Every setter
/// may lead to the end of the slider widget: nothing is touched afterwards.
class SliderEditors
{
public:
    /// The boxes are children of the slider widget that owns this.
    explicit SliderEditors(const Ui::oVIXSliderWidget &form);

    void setMode(oVIXSliderWidget::SLIDERMODE mode) { m_mode = mode; }
    oVIXSliderWidget::SLIDERMODE mode() const { return m_mode; }
    bool isRange() const;
    bool isInteger() const;
    bool isLateral() const;
    bool hasBar() const;

    QList<QAbstractSpinBox *> all() const;
    /// The box that shows the value, or the upper end of a range.
    QAbstractSpinBox *valueEditor() const;

    void setValueAndLimits(double minimum, double maximum, double value, double step);
    void setLowerEndAndLimits(double minimum, double maximum, double value, double step);
    void setMinimum(double minimum);
    void setMaximum(double maximum);
    void setValue(double value);
    void setLowerEnd(double value);
    /// Of the value; the lower end keeps its own.
    void setStep(double step);
    void setDecimals(int decimals);
    void setSuffix(const QString &suffix);

    /// The end of the range that is dragged, in the boxes that are seen.
    void dragTo(double value, bool upperEnd);
    /// Keeps the lower end below the value from now on.
    void limitLowerEnd();

    double value() const;
    double lowerEnd() const;
    double minimum() const;
    double maximum() const;
    /// The number at the left end of a bar: both ends of a range are placed by the lower end's box.
    double lowerLimit() const;

private:
    oVIXSliderWidget::SLIDERMODE m_mode = oVIXSliderWidget::SingleInteger;
    QSpinBox *m_lower;
    QDoubleSpinBox *m_lowerDouble;
    QSpinBox *m_value;
    QDoubleSpinBox *m_valueDouble;
    QDoubleSpinBox *m_lateral;
};
