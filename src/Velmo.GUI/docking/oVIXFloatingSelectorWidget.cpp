#include "docking/oVIXFloatingSelectorWidget.h"

#include "docking/FloatingOption.h"

#include <QKeyEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int padding = 4;

} // namespace

oVIXFloatingSelectorWidget::oVIXFloatingSelectorWidget(int minimumWidth, bool exclusive, QWidget *parent)
    : oVIXFloatingWidget(parent), m_column(new QVBoxLayout(this)), m_exclusive(exclusive)
{
    m_column->setContentsMargins(padding, padding, padding, padding);
    m_column->setSpacing(0);
    setMinimumWidth(std::clamp(minimumWidth, 0, QWIDGETSIZE_MAX));
}

oVIXFloatingSelectorWidget::~oVIXFloatingSelectorWidget() = default;

void oVIXFloatingSelectorWidget::clear()
{
    setFocusProxy(nullptr);
    m_current = nullptr;
    for (FloatingOption *option : std::exchange(m_options, {})) {
        // It may be the one whose click has led here.
        option->disconnect(this);
        option->setAutoExclusive(false);
        m_column->removeWidget(option);
        option->hide();
        option->deleteLater();
    }
}

void oVIXFloatingSelectorWidget::addButton(const std::pair<QString, QString> &keyAndLabel, bool checked)
{
    const auto &[key, label] = keyAndLabel;
    auto *option = new FloatingOption(label, this);
    option->setAutoExclusive(m_exclusive);
    option->setChecked(checked);
    m_column->addWidget(option);
    m_options.append(option);
    connect(option, &FloatingOption::clicked, this, [this, key = key] { choose(key); });
    connect(option, &FloatingOption::reached, this, [this, option] { setCurrent(option); });
    if (!m_current || checked)
        setCurrent(option);
}

void oVIXFloatingSelectorWidget::showEvent(QShowEvent *event)
{
    const auto checked = std::find_if(m_options.cbegin(), m_options.cend(),
                                      [](const FloatingOption *option) { return option->isChecked(); });
    if (!m_options.isEmpty())
        setCurrent(checked == m_options.cend() ? m_options.constFirst() : *checked);
    oVIXFloatingWidget::showEvent(event);
}

void oVIXFloatingSelectorWidget::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        hide();
        return;
    }
    const qsizetype count = m_options.size();
    const qsizetype row = m_options.indexOf(m_current);
    if (row < 0) {
        oVIXFloatingWidget::keyPressEvent(event);
        return;
    }
    switch (event->key()) {
    case Qt::Key_Up:
        setCurrent(m_options[(row + count - 1) % count]);
        break;
    case Qt::Key_Down:
        setCurrent(m_options[(row + 1) % count]);
        break;
    case Qt::Key_Home:
        setCurrent(m_options.constFirst());
        break;
    case Qt::Key_End:
        setCurrent(m_options.constLast());
        break;
    default:
        oVIXFloatingWidget::keyPressEvent(event);
    }
}

void oVIXFloatingSelectorWidget::choose(QString key)
{
    hide();
    emit optionSelected(key);
}

/// The focus is the option's, and so is that which the pop-up is given.
void oVIXFloatingSelectorWidget::setCurrent(FloatingOption *option)
{
    if (option == m_current)
        return;
    if (m_current)
        m_current->setHighlighted(false);
    m_current = option;
    option->setHighlighted(true);
    setFocusProxy(option);
    if (isVisible())
        option->setFocus();
}
