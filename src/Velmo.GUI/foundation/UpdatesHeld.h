#pragma once

#include <QWidget>

/// Keeps a widget from asking for a repaint while alive.
///
/// For changes made during a paint that this very paint shows already. Unlike `QWidget::setUpdatesEnabled` it does not
/// ask for a repaint at the end, and it leaves the children alone.
class UpdatesHeld
{
public:
    explicit UpdatesHeld(QWidget *widget) : m_widget(widget), m_before(widget->testAttribute(Qt::WA_UpdatesDisabled))
    {
        m_widget->setAttribute(Qt::WA_UpdatesDisabled, true);
    }
    ~UpdatesHeld() { m_widget->setAttribute(Qt::WA_UpdatesDisabled, m_before); }
    Q_DISABLE_COPY_MOVE(UpdatesHeld)

private:
    QWidget *m_widget;
    bool m_before;
};
