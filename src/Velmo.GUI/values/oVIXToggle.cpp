#include "values/oVIXToggle.h"

#include "foundation/OvixSvgButton.h"
#include "values/ToggleAccessibility.h"

#include <QEasingCurve>
#include <QFrame>
#include <QHBoxLayout>
#include <QPropertyAnimation>

#include <algorithm>

using namespace Qt::StringLiterals;

oVIXToggle::oVIXToggle(QWidget *parent)
    : QWidget(parent), m_highlight(new QFrame(this)), m_slide(new QPropertyAnimation(m_highlight, "pos", this))
{
    installToggleAccessibility();
    setMinimumSize(StateWidth, StateWidth);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(StateSpacing);

    m_highlight->setFixedWidth(StateWidth);
    m_highlight->setStyleSheet(u"QFrame {\tbackground: rgba(116, 211, 252,48);}"_s);
    m_highlight->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_highlight->hide();

    m_slide->setDuration(StateChangeDurationMsecs);
    m_slide->setEasingCurve(QEasingCurve::OutCubic);
    connect(m_slide, &QPropertyAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(m_slide, &QPropertyAnimation::finished, this, [this] { emit changed(getCurrentState()); });
}

oVIXToggle::~oVIXToggle() = default;

void oVIXToggle::addState(const QString &icon, const QString &checkedIcon, const QString &name, const QString &toolTip)
{
    auto *button = new ToggleButton(this);
    button->setFixedSize(StateWidth, StateWidth);
    button->setFilename(icon);
    button->setFilenameInverted(checkedIcon);
    button->setBackgroundVisible(false, false); // the highlight is its background
    button->setToolTip(toolTip.isEmpty() ? name : toolTip);
    button->setAccessibleName(name);
    button->show(); // from now on it is hidden only by setStateVisible
    connect(button, &OvixSvgButton::clicked, this, &oVIXToggle::stateClicked);

    m_states.append({name, button});
    onVisibleStateCountChange();
    if (m_currentIndex < 0)
        triggerStateChange(name, false);
}

void oVIXToggle::setState(const QString &name)
{
    triggerStateChange(name, true);
}

QString oVIXToggle::getCurrentState()
{
    return m_currentIndex < 0 ? QString() : m_states[m_currentIndex].name;
}

void oVIXToggle::setStateEnabled(const QString &name, bool enabled)
{
    const int index = indexOf(name);
    if (index >= 0)
        m_states[index].button->setEnabled(enabled);
}

void oVIXToggle::setStateToolTip(const QString &name, const QString &toolTip)
{
    const int index = indexOf(name);
    if (index >= 0)
        m_states[index].button->setToolTip(toolTip);
}

void oVIXToggle::setStateVisible(const QString &name, bool visible)
{
    const int index = indexOf(name);
    if (index < 0)
        return;
    m_states[index].button->setVisible(visible);
    onVisibleStateCountChange();
}

void oVIXToggle::stateClicked()
{
    const QObject *clicked = sender();
    const auto isIt = [clicked](const State &state) { return state.button == clicked; };
    const auto found = std::find_if(m_states.cbegin(), m_states.cend(), isIt);
    if (found != m_states.cend())
        triggerStateChange(QString(found->name), true);
}

void oVIXToggle::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_highlight->setFixedHeight(height());
}

int oVIXToggle::indexOf(const QString &name) const
{
    const auto isIt = [&name](const State &state) { return state.name == name; };
    const auto found = std::find_if(m_states.cbegin(), m_states.cend(), isIt);
    return found == m_states.cend() ? -1 : int(found - m_states.cbegin());
}

void oVIXToggle::triggerStateChange(const QString &name, bool slide)
{
    const int index = indexOf(name);
    if (index < 0 || index == m_currentIndex)
        return;
    const int before = m_currentIndex;
    m_currentIndex = index;
    if (before >= 0)
        m_states[before].button->setChecked(false);
    m_states[index].button->setChecked(true);

    m_slide->stop();
    const QPoint place(index * StateWidth, 0);
    if (before >= 0 && slide) {
        m_slide->setStartValue(QPoint(before * StateWidth, 0));
        m_slide->setEndValue(place);
        m_slide->start();
    } else {
        m_highlight->move(place);
        m_highlight->show();
    }
}

void oVIXToggle::onVisibleStateCountChange()
{
    int visible = 0;
    for (const State &state : std::as_const(m_states)) {
        // Not isVisible(): before the toggle is shown nothing in it is.
        if (state.button->isHidden())
            continue;
        state.button->move(visible * StateWidth, 0);
        ++visible;
    }
    if (visible > 0)
        setFixedWidth(visible * StateWidth);
}
