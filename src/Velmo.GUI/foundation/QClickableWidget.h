#pragma once

#include "VelmoGuiExport.h"

#include <QWidget>

/// A plain widget that can be clicked: `clicked` comes on a left press, other buttons are left to the parent widget.
/// With a focus policy set, Space and Return press it. Assistive tools see a button named by the text on it.
class VELMO_GUI_EXPORT QClickableWidget : public QWidget
{
    Q_OBJECT

public:
    /// A widget that shows nothing of its own.
    explicit QClickableWidget(QWidget *parent = nullptr);
    ~QClickableWidget() override;

signals:
    /// The left button has been pressed on the widget, or `click` called. A double click emits it twice.
    void clicked();

public slots:
    /// Does what a left press does, for the keyboard and for assistive tools. Nothing while disabled.
    void click();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};
