#include "values/SliderEditors.h"

#include "ui_oVIXSliderWidget.h"

#include "values/SaturatedInt.h"
#include "values/SliderRules.h"
#include "values/WhileAlive.h"

namespace {

int heldBy(const QSpinBox *, double number)
{
    return saturatedInt(number);
}

double heldBy(const QDoubleSpinBox *, double number)
{
    return SliderRules::nearestFinite(number);
}

template <class Setter, class FirstBox, class... Boxes> void setInTurn(Setter set, FirstBox *first, Boxes *...others)
{
    whileAlive(
        first, [&] { set(first); }, [&] { set(others); }...);
}

/// What a box gets at once, the limits first.
struct BoxNumbers
{
    double minimum;
    double maximum;
    double value;
    double step;

    template <class Box> void operator()(Box *box) const
    {
        whileAlive(
            box, [&] { box->setMinimum(heldBy(box, minimum)); }, [&] { box->setMaximum(heldBy(box, maximum)); },
            [&] { box->setValue(heldBy(box, value)); }, [&] { box->setSingleStep(heldBy(box, step)); });
    }
};

} // namespace

SliderEditors::SliderEditors(const Ui::oVIXSliderWidget &form)
    : m_lower(form.spinMin), m_lowerDouble(form.spinMinDouble), m_value(form.spinMax),
      m_valueDouble(form.spinMaxDouble), m_lateral(form.lateralSpin)
{ }

bool SliderEditors::isRange() const
{
    return m_mode == oVIXSliderWidget::IntegerRange || m_mode == oVIXSliderWidget::DoubleRange;
}

bool SliderEditors::isInteger() const
{
    return m_mode == oVIXSliderWidget::IntegerRange || m_mode == oVIXSliderWidget::SingleInteger;
}

bool SliderEditors::isLateral() const
{
    return m_mode == oVIXSliderWidget::Lateral || m_mode == oVIXSliderWidget::LateralPlain;
}

bool SliderEditors::hasBar() const
{
    return isInteger() || m_mode == oVIXSliderWidget::DoubleRange || m_mode == oVIXSliderWidget::SingleDouble;
}

QList<QAbstractSpinBox *> SliderEditors::all() const
{
    return {m_lower, m_lowerDouble, m_lateral, m_value, m_valueDouble};
}

QAbstractSpinBox *SliderEditors::valueEditor() const
{
    if (isLateral())
        return m_lateral;
    return isInteger() ? static_cast<QAbstractSpinBox *>(m_value) : m_valueDouble;
}

void SliderEditors::setValueAndLimits(double minimum, double maximum, double value, double step)
{
    setInTurn(BoxNumbers{minimum, maximum, value, step}, m_valueDouble, m_lateral, m_value);
}

void SliderEditors::setLowerEndAndLimits(double minimum, double maximum, double value, double step)
{
    setInTurn(BoxNumbers{minimum, maximum, value, step}, m_lowerDouble, m_lower);
}

void SliderEditors::setMinimum(double minimum)
{
    const auto set = [minimum](auto *box) { box->setMinimum(heldBy(box, minimum)); };
    setInTurn(set, m_lowerDouble, m_lower, m_valueDouble, m_value, m_lateral);
}

void SliderEditors::setMaximum(double maximum)
{
    const auto set = [maximum](auto *box) { box->setMaximum(heldBy(box, maximum)); };
    setInTurn(set, m_lowerDouble, m_lower, m_valueDouble, m_value, m_lateral);
}

void SliderEditors::setValue(double value)
{
    const auto set = [value](auto *box) { box->setValue(heldBy(box, value)); };
    whileAlive(
        m_value, [&] { setInTurn(set, m_value, m_valueDouble); },
        [&] {
            if (isLateral())
                set(m_lateral);
        });
}

void SliderEditors::setLowerEnd(double value)
{
    setInTurn([value](auto *box) { box->setValue(heldBy(box, value)); }, m_lowerDouble, m_lower);
}

void SliderEditors::setStep(double step)
{
    const auto set = [step](auto *box) { box->setSingleStep(heldBy(box, step)); };
    setInTurn(set, m_valueDouble, m_value, m_lateral);
}

void SliderEditors::setDecimals(int decimals)
{
    const auto set = [decimals](QDoubleSpinBox *box) { box->setDecimals(decimals); };
    setInTurn(set, m_valueDouble, m_lowerDouble, m_lateral);
}

void SliderEditors::setSuffix(const QString &suffix)
{
    const auto set = [&suffix](auto *box) { box->setSuffix(suffix); };
    setInTurn(set, m_lower, m_value, m_lowerDouble, m_valueDouble, m_lateral);
}

void SliderEditors::dragTo(double value, bool upperEnd)
{
    if (isInteger()) {
        (upperEnd ? m_value : m_lower)->setValue(saturatedInt(value));
    } else {
        QDoubleSpinBox *box = upperEnd ? m_valueDouble : m_lowerDouble;
        box->setValue(heldBy(box, value));
    }
}

void SliderEditors::limitLowerEnd()
{
    whileAlive(
        m_lower, [this] { m_lower->setMaximum(m_value->value()); },
        [this] { m_lowerDouble->setMaximum(m_valueDouble->value()); });
}

double SliderEditors::value() const
{
    if (isLateral())
        return m_lateral->value();
    if (!hasBar())
        return 0.0;
    return isInteger() ? m_value->value() : m_valueDouble->value();
}

double SliderEditors::lowerEnd() const
{
    if (!isRange())
        return 0.0;
    return isInteger() ? m_lower->value() : m_lowerDouble->value();
}

double SliderEditors::minimum() const
{
    if (isLateral())
        return m_lateral->minimum();
    return isInteger() ? m_value->minimum() : m_valueDouble->minimum();
}

double SliderEditors::maximum() const
{
    if (isLateral())
        return m_lateral->maximum();
    return isInteger() ? m_value->maximum() : m_valueDouble->maximum();
}

double SliderEditors::lowerLimit() const
{
    if (isRange())
        return isInteger() ? m_lower->minimum() : m_lowerDouble->minimum();
    return minimum();
}
