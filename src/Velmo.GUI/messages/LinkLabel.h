#pragma once

#include "VelmoGuiExport.h"

#include <QLabel>

/// A grey line of text that opens a web address or starts a program when it is pressed, with any mouse button.
///
/// 20 logical pixels high. With a focus policy set, Space and Return press it. What cannot be opened or started is
/// passed over.
class VELMO_GUI_EXPORT LinkLabel : public QLabel
{
    Q_OBJECT

public:
    /// @p kind is 0 for a web address, 1 for a program, started without arguments; any other leads nowhere. The target
    /// is taken as it is: give none that comes from elsewhere.
    LinkLabel(QString text, QString target, int kind, QWidget *parent);
    ~LinkLabel() override;

public slots:
    /// Does what a press does, for the keyboard and for assistive tools.
    void open();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_target;
    int m_kind;
};
