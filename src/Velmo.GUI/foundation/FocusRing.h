#pragma once

#include <QObject>

class QWidget;

/// Draws the keyboard focus on a widget of the toolkit that shows none under its style sheet; on a tab bar, round the
/// current tab. A child of the widget.
class FocusRing : public QObject
{
    Q_OBJECT

public:
    static constexpr qreal usualRadius = 3.0;

    /// @p radius is that of the widget's corners, in logical pixels.
    explicit FocusRing(QWidget *widget, qreal radius = usualRadius);
    ~FocusRing() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    qreal m_radius;
};
