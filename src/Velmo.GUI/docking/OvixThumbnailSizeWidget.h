#pragma once

#include "docking/oVIXFloatingSelectorWidget.h"

/// The pop-up that asks for the size of preview pictures: one of `OvixThumbnailSize::Sizes`.
class VELMO_GUI_EXPORT OvixThumbnailSizeWidget : public oVIXFloatingSelectorWidget
{
    Q_OBJECT

public:
    /// A pop-up without options, kept inside @p parent; without one, inside the screen. Call `setup` before it is
    /// shown.
    explicit OvixThumbnailSizeWidget(QWidget *parent);
    ~OvixThumbnailSizeWidget() override;

    /// Makes the options anew, the one of this size checked. Any other number leaves all unchecked.
    void setup(int current);

signals:
    /// The user has chosen this size.
    void sizeSelected(int size);

private slots:
    void sizeOptionSelected(QString key);
};
