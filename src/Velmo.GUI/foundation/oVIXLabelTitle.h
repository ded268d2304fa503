#pragma once

#include "VelmoGuiExport.h"

#include <QLabel>

/// The title above a list or a group of controls: a raised strip with secondary text, shown as plain text.
///
/// The look is the widget's own style sheet, which names this class; a sheet set from outside takes its place.
class VELMO_GUI_EXPORT oVIXLabelTitle : public QLabel
{
    Q_OBJECT

public:
    /// A title without a text.
    explicit oVIXLabelTitle(QWidget *parent = nullptr);
    ~oVIXLabelTitle() override;
};
