#pragma once

#include "VelmoGuiExport.h"

#include <QListWidget>

/// A plain list that a pressed pointer does not drag: while the left button is held, moves neither select rows nor draw
/// a rubber band and are left to the parent widget.
class VELMO_GUI_EXPORT QListWidgetNoDrag : public QListWidget
{
    Q_OBJECT

public:
    /// An empty list.
    explicit QListWidgetNoDrag(QWidget *parent = nullptr);
    ~QListWidgetNoDrag() override;

protected:
    void mouseMoveEvent(QMouseEvent *event) override;
};
