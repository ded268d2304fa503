#pragma once

#include "VelmoGuiExport.h"

#include <QLineEdit>

/// The line of an add tag in which a new tag is typed. Hidden until it is asked for; hides itself when it loses the
/// keyboard and on Escape, which also empties it.
class VELMO_GUI_EXPORT oVIXAutoHideLine : public QLineEdit
{
    Q_OBJECT

public:
    /// A hidden line in these colours, shown opaque.
    oVIXAutoHideLine(QWidget *parent, const QColor &background, const QColor &text);
    ~oVIXAutoHideLine() override;

protected:
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};
