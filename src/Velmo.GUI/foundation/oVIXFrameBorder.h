#pragma once

#include "VelmoGuiExport.h"

#include <QFrame>

/// A plain frame in the look of the library: the deepest background inside a rounded border of one pixel.
///
/// Its look is its style sheet, whose selector is this class: a derived class may replace it.
class VELMO_GUI_EXPORT oVIXFrameBorder : public QFrame
{
    Q_OBJECT

public:
    /// An empty frame.
    explicit oVIXFrameBorder(QWidget *parent = nullptr);
    ~oVIXFrameBorder() override;
};
