#include "values/oVIXSliderWidget.h"

#include "ui_oVIXSliderWidget.h"

#include "foundation/SheetOnChange.h"
#include "values/AccessibleSlider.h"
#include "values/SliderEditors.h"
#include "values/SliderRules.h"
#include "values/SliderSheets.h"
#include "values/WhileAlive.h"

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

template <class... Numbers> bool areNumbers(Numbers... numbers)
{
    return !(std::isnan(numbers) || ...);
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
    m_editors = std::make_unique<SliderEditors>(*m_ui);

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
    m_editors->setMode(mode);
    const bool bar = m_editors->hasBar();
    const bool range = m_editors->isRange();
    const bool lateral = m_editors->isLateral();
    const bool integerBoxes = bar && m_editors->isInteger();
    const bool doubleBoxes = bar && !m_editors->isInteger();
    m_ui->spinMaxDoubleWidget->setVisible(doubleBoxes);
    m_ui->spinMaxWidget->setVisible(integerBoxes);
    m_ui->spinMinWidget->setVisible(integerBoxes && range);
    m_ui->spinMinDoubleWidget->setVisible(doubleBoxes && range);
    m_ui->widgetMinControls->setVisible(range);
    m_ui->widgetMaxControls->setVisible(bar);
    m_ui->lbSlider->setVisible(bar);
    m_ui->lateralSpinFrame->setVisible(lateral);
    m_ui->lbSub->setVisible(lateral);
    m_ui->lbAdd->setVisible(lateral);
    layout()->setContentsMargins(0, 0, 0, 0);

    m_snapToInteger = integerBoxes;
    if (bar) {
        m_ui->lbSlider->setBorderLeft(!range);
        m_ui->lbSlider->setBorderRight(false);
        m_ui->lbSlider->setRoundedLeft(!range);
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
        this, [&] { m_editors->setValueAndLimits(min, max, value, step); }, [&] { setSliderEnd(max); });
}

void oVIXSliderWidget::setLimitsAndValuesMin(double min, double max, double value, double step)
{
    if (!areNumbers(min, max, value, step))
        return;
    whileAlive(
        this, [&] { m_editors->setLowerEndAndLimits(min, max, value, step); }, [&] { setSliderEnd(max); });
}

void oVIXSliderWidget::setValue(double value)
{
    if (!areNumbers(value))
        return;
    m_lastFinishedValue = value;
    whileAlive(
        this, [&] { m_editors->setValue(value); }, [this] { updateSlider(); }, [this] { fnValueFinished(); });
}

void oVIXSliderWidget::setValueMin(double value)
{
    if (!areNumbers(value))
        return;
    m_lastFinishedMinimum = value;
    whileAlive(
        this, [&] { m_editors->setLowerEnd(value); }, [this] { updateSlider(); }, [this] { fnValueFinished(); });
}

void oVIXSliderWidget::setMinimum(double minimum)
{
    if (!areNumbers(minimum))
        return;
    whileAlive(
        this, [&] { m_editors->setMinimum(minimum); }, [this] { updateSlider(); });
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
    if (areNumbers(maximum))
        m_editors->setMaximum(maximum);
}

void oVIXSliderWidget::setSingleStep(double step)
{
    if (areNumbers(step))
        m_editors->setStep(step);
}

void oVIXSliderWidget::setDecimals(int decimals)
{
    m_editors->setDecimals(decimals);
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
    m_editors->setSuffix(suffix);
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
    return m_editors->value();
}

double oVIXSliderWidget::valueMin() const
{
    return m_editors->lowerEnd();
}

double oVIXSliderWidget::minimum() const
{
    return m_editors->minimum();
}

double oVIXSliderWidget::spinBoxMaximum() const
{
    return m_editors->maximum();
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
    if (!m_editors->hasBar())
        return;
    const float left = m_editors->isRange() ? SliderRules::singlePrecision(ratioOfMinimum()) : keepMarker;
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
    if (!m_editors->hasBar())
        return;
    ratio = snapRatio(ratio);
    const double lowest = m_editors->minimum();
    const bool upperEnd = !m_editors->isRange()
        || SliderRules::movesMaximum(ratio, ratioOfMinimum(), ratioOfValue(),
                                     SliderRules::isAtLimit(m_editors->value(), lowest));
    whileAlive(
        this, [&] { m_editors->dragTo(SliderRules::valueAt(ratio, lowest, m_sliderMaximum), upperEnd); },
        [this] { updateSlider(); });
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

oVIXSliderWidget::SLIDERMODE oVIXSliderWidget::mode() const
{
    return m_editors->mode();
}

double oVIXSliderWidget::snapRatio(double ratio) const
{
    return SliderRules::snappedRatio(ratio, m_editors->lowerLimit(), m_sliderMaximum, m_snapToInteger);
}

double oVIXSliderWidget::ratioOfMinimum() const
{
    return SliderRules::ratioOf(m_editors->lowerEnd(), m_editors->lowerLimit(), m_sliderMaximum);
}

double oVIXSliderWidget::ratioOfValue() const
{
    return SliderRules::ratioOf(m_editors->value(), m_editors->lowerLimit(), m_sliderMaximum);
}

void oVIXSliderWidget::updateMinLimits()
{
    m_editors->limitLowerEnd();
}

void oVIXSliderWidget::setSliderEnd(double maximum)
{
    m_sliderMaximum = SliderRules::nearestFinite(maximum);
    updateSlider();
}

void oVIXSliderWidget::stepAndFinish(QAbstractSpinBox *box, bool up)
{
    whileAlive(
        this, [&] { up ? box->stepUp() : box->stepDown(); }, [this] { fnValueFinished(); });
}

QAbstractSpinBox *oVIXSliderWidget::valueEditor() const
{
    return m_editors->valueEditor();
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
    return m_editors->all();
}
