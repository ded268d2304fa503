#pragma once

#include "VelmoGuiExport.h"

#include <QLabel>

/// The title above a list or a group of controls: a raised strip with secondary text, shown as plain text on one line
/// that ends in an ellipsis where it does not fit.
///
/// The look is the widget's own style sheet, which names this class; a sheet set from outside takes its place.
class VELMO_GUI_EXPORT oVIXLabelTitle : public QLabel
{
    Q_OBJECT

public:
    /// A title without a text.
    explicit oVIXLabelTitle(QWidget *parent = nullptr);
    ~oVIXLabelTitle() override;

    /// As much as the text needs; it may be squeezed to a few letters.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
