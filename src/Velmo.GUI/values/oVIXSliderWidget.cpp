#include "values/oVIXSliderWidget.h"

#include "ui_oVIXSliderWidget.h"

#include "foundation/SheetOnChange.h"
#include "values/AccessibleSlider.h"
#include "values/SliderRules.h"
#include "values/SliderSheets.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QWheelEvent>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int rowHeight = 20;
constexpr float keepMarker = -1.0F;
constexpr float noLeftMarker = 0.0F;

double nearestFinite(double number)
{
    return std::clamp(number, std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max());
}

template <class... Numbers> bool areNumbers(Numbers... numbers)
{
    return !(std::isnan(numbers) || ...);
}

/// One step after the other for as long as the object lives: each may emit a signal that ends it.
template <class... Steps> void whileAlive(QObject *object, Steps... steps)
{
    const QPointer<QObject> alive(object);
    static_cast<void>(((steps(), !alive.isNull()) && ...));
}

template <class Box, class Number> void setAll(Box *box, Number minimum, Number maximum, Number value, Number step)
{
    whileAlive(
        box, [&] { box->setMinimum(minimum); }, [&] { box->setMaximum(maximum); }, [&] { box->setValue(value); },
        [&] { box->setSingleStep(step); });
}

void setBox(QSpinBox *box, void (QSpinBox::*setter)(int), double number)
{
    (box->*setter)(saturatedInt(number));
}

void setBox(QDoubleSpinBox *box, void (QDoubleSpinBox::*setter)(double), double number)
{
    (box->*setter)(nearestFinite(number));
}

bool isReturn(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

} // namespace

oVIXSliderWidget::oVIXSliderWidget(QWidget *parent) : QAbstractSpinBox(parent), m_ui(new Ui::oVIXSliderWidget)
{
    AccessibleSlider::install();
    lineEdit()->hide();
    setFrame(false);
    setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_ui->setupUi(this);

    m_ui->lbSlider->setStyleSheet(u"background-color:transparent;"_s);
    m_ui->spinMin->setStyleSheet(SliderSheets::editor(u"QSpinBox"_s, u"left"_s));
    m_ui->spinMax->setStyleSheet(SliderSheets::editor(u"QSpinBox"_s, u"right"_s));
    m_ui->spinMinDouble->setStyleSheet(SliderSheets::editor(u"QDoubleSpinBox"_s, u"left"_s));
    m_ui->spinMaxDouble->setStyleSheet(SliderSheets::editor(u"QDoubleSpinBox"_s, u"right"_s));
    m_ui->lateralSpinFrame->setStyleSheet(SliderSheets::lateralFrame());
    m_ui->lateralSpin->setStyleSheet(SliderSheets::lateralText(u"QDoubleSpinBox"_s));
    m_ui->lateralSpinPrefix->setStyleSheet(SliderSheets::lateralText(u"QLabel"_s));

    connect(m_ui->lbSlider, &oVIXSliderBar::valueStarted, this, &oVIXSliderWidget::valueStarted);
    connect(m_ui->lbSlider, &oVIXSliderBar::valueChanged, this, &oVIXSliderWidget::fnSliderMoved);
    connect(m_ui->lbSlider, &oVIXSliderBar::valueFinished, this, &oVIXSliderWidget::fnValueFinished);
    m_ui->lbSlider->setContextMenuPolicy(Qt::NoContextMenu);
    m_ui->lbSlider->installEventFilter(this);

    for (QSpinBox *box : {m_ui->spinMax, m_ui->spinMin})
        connect(box, &QSpinBox::valueChanged, this, &oVIXSliderWidget::fnSpinboxValueChanged);
    for (QDoubleSpinBox *box : {m_ui->lateralSpin, m_ui->spinMaxDouble, m_ui->spinMinDouble})
        connect(box, &QDoubleSpinBox::valueChanged, this, &oVIXSliderWidget::fnSpinboxValueChanged);
    const QList<QAbstractSpinBox *> boxes = editors();
    for (QAbstractSpinBox *box : boxes) {
        connect(box, &QAbstractSpinBox::editingFinished, this, &oVIXSliderWidget::fnSpinboxFinished);
        box->setContextMenuPolicy(Qt::NoContextMenu);
        box->installEventFilter(this);
    }

    const auto setUpArrow = [this](OvixSvgButton *arrow, const QString &shape, const QString &name, auto clicked) {
        arrow->setFilename(shape);
        arrow->setAccessibleName(name);
        arrow->setHoverVisible(true);
        connect(arrow, &OvixSvgButton::clicked, this, clicked);
    };
    for (OvixSvgButton *arrow :
         {m_ui->spinMinArrowUp, m_ui->spinMinDoubleArrowUp, m_ui->spinMaxArrowUp, m_ui->spinMaxDoubleArrowUp})
        setUpArrow(arrow, u":/Windows/UpArrow"_s, tr("Increase"), &oVIXSliderWidget::fnSpinboxArrowClicked);
    for (OvixSvgButton *arrow :
         {m_ui->spinMinArrowDown, m_ui->spinMinDoubleArrowDown, m_ui->spinMaxArrowDown, m_ui->spinMaxDoubleArrowDown})
        setUpArrow(arrow, u":/Windows/DownArrow"_s, tr("Decrease"), &oVIXSliderWidget::fnSpinboxArrowClicked);
    setUpArrow(m_ui->lbSub, u":/Windows/LeftArrow"_s, tr("Decrease"), &oVIXSliderWidget::fnLateralArrowClicked);
    setUpArrow(m_ui->lbAdd, u":/Windows/RightArrow"_s, tr("Increase"), &oVIXSliderWidget::fnLateralArrowClicked);

    setFocusPolicy(Qt::NoFocus);
    setContextMenuPolicy(Qt::NoContextMenu);
    changeMode(SingleInteger);
}

oVIXSliderWidget::~oVIXSliderWidget()
{
    // A box with the focus finishes its edit while the children go, when there is no slider widget any more.
    const QList<QAbstractSpinBox *> boxes = editors();
    for (QAbstractSpinBox *box : boxes)
        box->disconnect(this);
}

void oVIXSliderWidget::changeMode(SLIDERMODE mode)
{
    setFixedHeight(rowHeight);
    m_mode = mode;
    const bool integerBoxes = hasBar() && isInteger();
    const bool doubleBoxes = hasBar() && !isInteger();
    m_ui->spinMaxDoubleWidget->setVisible(doubleBoxes);
    m_ui->spinMaxWidget->setVisible(integerBoxes);
    m_ui->spinMinWidget->setVisible(integerBoxes && isRange());
    m_ui->spinMinDoubleWidget->setVisible(doubleBoxes && isRange());
    m_ui->widgetMinControls->setVisible(isRange());
    m_ui->widgetMaxControls->setVisible(hasBar());
    m_ui->lbSlider->setVisible(hasBar());
    m_ui->lateralSpinFrame->setVisible(isLateral());
    m_ui->lbSub->setVisible(isLateral());
    m_ui->lbAdd->setVisible(isLateral());
    layout()->setContentsMargins(0, 0, 0, 0);

    m_snapToInteger = integerBoxes;
    if (hasBar()) {
        m_ui->lbSlider->setBorderLeft(!isRange());
        m_ui->lbSlider->setBorderRight(false);
        m_ui->lbSlider->setRoundedLeft(!isRange());
        m_ui->lbSlider->setRoundedRight(false);
        // A single value leaves the left marker alone from now on, so the one of a range has to go first.
        m_ui->lbSlider->posMarkers(noLeftMarker, keepMarker);
    }
    updateSlider();
}

void oVIXSliderWidget::setLimitsAndValues(double min, double max, double value, double step)
{
    if (!areNumbers(min, max, value, step))
        return;
    whileAlive(
        this,
        [&] {
            setAll(m_ui->spinMaxDouble, nearestFinite(min), nearestFinite(max), nearestFinite(value),
                   nearestFinite(step));
        },
        [&] {
            setAll(m_ui->lateralSpin, nearestFinite(min), nearestFinite(max), nearestFinite(value),
                   nearestFinite(step));
        },
        [&] { setAll(m_ui->spinMax, saturatedInt(min), saturatedInt(max), saturatedInt(value), saturatedInt(step)); },
        [&] { setSliderEnd(max); });
}

void oVIXSliderWidget::setLimitsAndValuesMin(double min, double max, double value, double step)
{
    if (!areNumbers(min, max, value, step))
        return;
    whileAlive(
        this,
        [&] {
            setAll(m_ui->spinMinDouble, nearestFinite(min), nearestFinite(max), nearestFinite(value),
                   nearestFinite(step));
        },
        [&] { setAll(m_ui->spinMin, saturatedInt(min), saturatedInt(max), saturatedInt(value), saturatedInt(step)); },
        [&] { setSliderEnd(max); });
}

void oVIXSliderWidget::setValue(double value)
{
    if (!areNumbers(value))
        return;
    m_lastFinishedValue = value;
    whileAlive(
        this, [&] { m_ui->spinMax->setValue(saturatedInt(value)); },
        [&] { m_ui->spinMaxDouble->setValue(nearestFinite(value)); },
        [&] {
            if (isLateral())
                m_ui->lateralSpin->setValue(nearestFinite(value));
        },
        [&] { updateSlider(); }, [&] { fnValueFinished(); });
}

void oVIXSliderWidget::setValueMin(double value)
{
    if (!areNumbers(value))
        return;
    m_lastFinishedMinimum = value;
    whileAlive(
        this, [&] { m_ui->spinMinDouble->setValue(nearestFinite(value)); },
        [&] { m_ui->spinMin->setValue(saturatedInt(value)); }, [&] { updateSlider(); }, [&] { fnValueFinished(); });
}

void oVIXSliderWidget::setMinimum(double minimum)
{
    if (!areNumbers(minimum))
        return;
    whileAlive(
        this, [&] { setBox(m_ui->spinMinDouble, &QDoubleSpinBox::setMinimum, minimum); },
        [&] { setBox(m_ui->spinMin, &QSpinBox::setMinimum, minimum); },
        [&] { setBox(m_ui->spinMaxDouble, &QDoubleSpinBox::setMinimum, minimum); },
        [&] { setBox(m_ui->spinMax, &QSpinBox::setMinimum, minimum); },
        [&] { setBox(m_ui->lateralSpin, &QDoubleSpinBox::setMinimum, minimum); }, [&] { updateSlider(); });
}

void oVIXSliderWidget::setMaximum(double maximum)
{
    setSliderMaximum(maximum);
    setSpinBoxMaximum(maximum);
}

void oVIXSliderWidget::setSliderMaximum(double maximum)
{
    if (areNumbers(maximum))
        setSliderEnd(maximum);
}

void oVIXSliderWidget::setSpinBoxMaximum(double maximum)
{
    if (!areNumbers(maximum))
        return;
    whileAlive(
        this, [&] { setBox(m_ui->spinMinDouble, &QDoubleSpinBox::setMaximum, maximum); },
        [&] { setBox(m_ui->spinMin, &QSpinBox::setMaximum, maximum); },
        [&] { setBox(m_ui->spinMaxDouble, &QDoubleSpinBox::setMaximum, maximum); },
        [&] { setBox(m_ui->spinMax, &QSpinBox::setMaximum, maximum); },
        [&] { setBox(m_ui->lateralSpin, &QDoubleSpinBox::setMaximum, maximum); });
}

void oVIXSliderWidget::setSingleStep(double step)
{
    if (!areNumbers(step))
        return;
    m_ui->spinMaxDouble->setSingleStep(nearestFinite(step));
    m_ui->spinMax->setSingleStep(saturatedInt(step));
    m_ui->lateralSpin->setSingleStep(nearestFinite(step));
}

void oVIXSliderWidget::setDecimals(int decimals)
{
    whileAlive(
        this, [&] { m_ui->spinMaxDouble->setDecimals(decimals); }, [&] { m_ui->spinMinDouble->setDecimals(decimals); },
        [&] { m_ui->lateralSpin->setDecimals(decimals); });
}

void oVIXSliderWidget::setPrefix(const QString &prefix)
{
    m_prefix = prefix;
    m_ui->lbSlider->setText(prefix);
    m_ui->lateralSpinPrefix->setText(prefix);
    nameEditors();
}

QString oVIXSliderWidget::getPrefix() const
{
    return m_prefix;
}

void oVIXSliderWidget::setSuffix(const QString &suffix)
{
    for (QSpinBox *box : {m_ui->spinMin, m_ui->spinMax})
        box->setSuffix(suffix);
    for (QDoubleSpinBox *box : {m_ui->spinMinDouble, m_ui->spinMaxDouble, m_ui->lateralSpin})
        box->setSuffix(suffix);
}

void oVIXSliderWidget::setSnapToInteger(bool snap)
{
    m_snapToInteger = snap;
}

void oVIXSliderWidget::setColorNoSliderMode(const QString &colour)
{
    setSheetOnChange(m_ui->lateralSpin, SliderSheets::lateralText(u"QDoubleSpinBox"_s, colour));
    setSheetOnChange(m_ui->lateralSpinPrefix, SliderSheets::lateralText(u"QLabel"_s, colour));
}

double oVIXSliderWidget::value() const
{
    if (isLateral())
        return m_ui->lateralSpin->value();
    if (!hasBar())
        return 0.0;
    return isInteger() ? m_ui->spinMax->value() : m_ui->spinMaxDouble->value();
}

double oVIXSliderWidget::valueMin() const
{
    if (!isRange())
        return 0.0;
    return isInteger() ? m_ui->spinMin->value() : m_ui->spinMinDouble->value();
}

double oVIXSliderWidget::minimum() const
{
    if (isLateral())
        return m_ui->lateralSpin->minimum();
    return isInteger() ? m_ui->spinMax->minimum() : m_ui->spinMaxDouble->minimum();
}

double oVIXSliderWidget::spinBoxMaximum() const
{
    if (isLateral())
        return m_ui->lateralSpin->maximum();
    return isInteger() ? m_ui->spinMax->maximum() : m_ui->spinMaxDouble->maximum();
}

double oVIXSliderWidget::sliderMaximum() const
{
    return m_sliderMaximum;
}

bool oVIXSliderWidget::hasFocus() const
{
    const QList<QAbstractSpinBox *> boxes = editors();
    return std::any_of(boxes.begin(), boxes.end(), [](const QAbstractSpinBox *box) { return box->hasFocus(); });
}

void oVIXSliderWidget::updateSlider()
{
    if (!hasBar())
        return;
    const float left = isRange() ? SliderRules::singlePrecision(ratioOfMinimum()) : keepMarker;
    m_ui->lbSlider->posMarkers(left, SliderRules::singlePrecision(ratioOfValue()));
}

QSize oVIXSliderWidget::sizeHint() const
{
    return layout()->totalSizeHint();
}

QSize oVIXSliderWidget::minimumSizeHint() const
{
    return layout()->totalMinimumSize();
}

bool oVIXSliderWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_ui->lbSlider) {
        // The markers lie on whole pixels, and the row may give the bar another width while its own stays.
        if (event->type() == QEvent::Resize)
            updateSlider();
        return false;
    }
    auto *box = qobject_cast<QAbstractSpinBox *>(watched);
    if (!box || !isEnabled())
        return false;

    if (event->type() == QEvent::KeyRelease && isReturn(static_cast<QKeyEvent *>(event))) {
        emit valueFinished();
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key != Qt::Key_Up && key != Qt::Key_Down)
            return false;
        stepAndFinish(box, key == Qt::Key_Up);
        return true;
    }
    if (event->type() == QEvent::Wheel) {
        stepAndFinish(box, static_cast<QWheelEvent *>(event)->angleDelta().y() > 0);
        return true;
    }
    return false;
}

void oVIXSliderWidget::showEvent(QShowEvent *event)
{
    nameEditors(); // nothing tells of a new accessible name
    QAbstractSpinBox::showEvent(event);
}

void oVIXSliderWidget::resizeEvent(QResizeEvent *event)
{
    QAbstractSpinBox::resizeEvent(event);
    updateSlider();
}

void oVIXSliderWidget::paintEvent(QPaintEvent *)
{
    // Everything to be seen is a child.
}

void oVIXSliderWidget::wheelEvent(QWheelEvent *event)
{
    // Beside the boxes it belongs to the panel that scrolls.
    event->ignore();
}

void oVIXSliderWidget::fnSliderMoved(double ratio)
{
    if (!hasBar())
        return;
    ratio = snapRatio(ratio);
    const double reference = isInteger() ? m_ui->spinMax->minimum() : m_ui->spinMaxDouble->minimum();
    const double value = SliderRules::valueAt(ratio, reference, m_sliderMaximum);
    const bool atItsLowest = isInteger()
        ? SliderRules::isAtLimit(m_ui->spinMax->value(), m_ui->spinMax->minimum())
        : SliderRules::isAtLimit(m_ui->spinMaxDouble->value(), m_ui->spinMaxDouble->minimum());
    const bool maximum = !isRange() || SliderRules::movesMaximum(ratio, ratioOfMinimum(), ratioOfValue(), atItsLowest);

    const QPointer<oVIXSliderWidget> alive(this);
    if (isInteger())
        setBox(maximum ? m_ui->spinMax : m_ui->spinMin, &QSpinBox::setValue, value);
    else
        setBox(maximum ? m_ui->spinMaxDouble : m_ui->spinMinDouble, &QDoubleSpinBox::setValue, value);
    if (alive)
        updateSlider();
}

void oVIXSliderWidget::fnSpinboxValueChanged()
{
    const QObject *box = sender();
    const QPointer<oVIXSliderWidget> alive(this);
    if (box == m_ui->spinMax) {
        emit valueChanged(m_ui->spinMax->value());
    } else if (box == m_ui->spinMin) {
        emit valueMinChanged(m_ui->spinMin->value());
    } else if (box == m_ui->lateralSpin) {
        emit valueChanged(saturatedInt(m_ui->lateralSpin->value()));
        if (alive)
            emit valueChanged(m_ui->lateralSpin->value());
    } else if (box == m_ui->spinMaxDouble) {
        emit valueChanged(m_ui->spinMaxDouble->value());
    } else if (box == m_ui->spinMinDouble) {
        emit valueMinChanged(m_ui->spinMinDouble->value());
    }
    if (!alive)
        return;
    updateSlider();
    if (box == valueEditor())
        AccessibleSlider::announceValue(this);
}

void oVIXSliderWidget::fnSpinboxArrowClicked()
{
    struct Arrows
    {
        const QObject *up;
        const QObject *down;
        QAbstractSpinBox *box;
    };
    const std::array<Arrows, 4> all{{
        {m_ui->spinMaxArrowUp, m_ui->spinMaxArrowDown, m_ui->spinMax},
        {m_ui->spinMaxDoubleArrowUp, m_ui->spinMaxDoubleArrowDown, m_ui->spinMaxDouble},
        {m_ui->spinMinArrowUp, m_ui->spinMinArrowDown, m_ui->spinMin},
        {m_ui->spinMinDoubleArrowUp, m_ui->spinMinDoubleArrowDown, m_ui->spinMinDouble},
    }};
    const QObject *arrow = sender();
    for (const Arrows &arrows : all) {
        if (arrow == arrows.up || arrow == arrows.down) {
            stepAndFinish(arrows.box, arrow == arrows.up);
            return;
        }
    }
}

void oVIXSliderWidget::fnLateralArrowClicked()
{
    stepAndFinish(m_ui->lateralSpin, sender() == m_ui->lbAdd);
}

void oVIXSliderWidget::fnSpinboxFinished()
{
    fnValueFinished();
}

void oVIXSliderWidget::fnValueFinished()
{
    const double now = value();
    const double minimumNow = valueMin();
    if (SliderRules::isUnchanged(m_lastFinishedValue, now)
        && SliderRules::isUnchanged(m_lastFinishedMinimum, minimumNow))
        return;
    m_lastFinishedValue = now;
    m_lastFinishedMinimum = minimumNow;
    whileAlive(
        this, [this] { updateMinLimits(); }, [this] { emit valueFinished(); });
}

bool oVIXSliderWidget::isRange() const
{
    return m_mode == IntegerRange || m_mode == DoubleRange;
}

bool oVIXSliderWidget::isInteger() const
{
    return m_mode == IntegerRange || m_mode == SingleInteger;
}

bool oVIXSliderWidget::isLateral() const
{
    return m_mode == Lateral || m_mode == LateralPlain;
}

bool oVIXSliderWidget::hasBar() const
{
    return isInteger() || m_mode == DoubleRange || m_mode == SingleDouble;
}

/// Both ends of a range are placed by the lower limit of the minimum's box.
double oVIXSliderWidget::lowerLimit() const
{
    if (isRange())
        return isInteger() ? m_ui->spinMin->minimum() : m_ui->spinMinDouble->minimum();
    return isInteger() ? m_ui->spinMax->minimum() : m_ui->spinMaxDouble->minimum();
}

double oVIXSliderWidget::snapRatio(double ratio) const
{
    return SliderRules::snappedRatio(ratio, lowerLimit(), m_sliderMaximum, m_snapToInteger);
}

double oVIXSliderWidget::ratioOfMinimum() const
{
    return SliderRules::ratioOf(valueMin(), lowerLimit(), m_sliderMaximum);
}

double oVIXSliderWidget::ratioOfValue() const
{
    return SliderRules::ratioOf(value(), lowerLimit(), m_sliderMaximum);
}

void oVIXSliderWidget::updateMinLimits()
{
    whileAlive(
        this, [this] { m_ui->spinMin->setMaximum(m_ui->spinMax->value()); },
        [this] { m_ui->spinMinDouble->setMaximum(m_ui->spinMaxDouble->value()); });
}

void oVIXSliderWidget::setSliderEnd(double maximum)
{
    m_sliderMaximum = nearestFinite(maximum);
    updateSlider();
}

void oVIXSliderWidget::stepAndFinish(QAbstractSpinBox *box, bool up)
{
    whileAlive(
        this, [&] { up ? box->stepUp() : box->stepDown(); }, [this] { fnValueFinished(); });
}

/// The box that shows the value, or the upper end of a range.
QAbstractSpinBox *oVIXSliderWidget::valueEditor() const
{
    if (isLateral())
        return m_ui->lateralSpin;
    return isInteger() ? static_cast<QAbstractSpinBox *>(m_ui->spinMax) : m_ui->spinMaxDouble;
}

/// As the slider itself is called.
void oVIXSliderWidget::nameEditors()
{
    const QString name = accessibleName().isEmpty() ? m_prefix : accessibleName();
    const QList<QAbstractSpinBox *> boxes = editors();
    for (QAbstractSpinBox *box : boxes)
        box->setAccessibleName(name);
    m_ui->lbSlider->setAccessibleName(name);
}

QList<QAbstractSpinBox *> oVIXSliderWidget::editors() const
{
    return {m_ui->spinMin, m_ui->spinMinDouble, m_ui->lateralSpin, m_ui->spinMax, m_ui->spinMaxDouble};
}
