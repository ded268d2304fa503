#pragma once

#include "VelmoGuiExport.h"

#include <QLineEdit>

/// A line edit in the look of the library: rounded, raised, with secondary text.
///
/// The look is the widget's own style sheet, which names this class; a sheet set from outside takes its place.
class VELMO_GUI_EXPORT oVIXLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    /// An empty line.
    explicit oVIXLineEdit(QWidget *parent = nullptr);
    ~oVIXLineEdit() override;
};
