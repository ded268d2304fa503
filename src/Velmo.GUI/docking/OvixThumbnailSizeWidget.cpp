#include "docking/OvixThumbnailSizeWidget.h"

#include "docking/OvixThumbnailSize.h"

OvixThumbnailSizeWidget::OvixThumbnailSizeWidget(QWidget *parent) : oVIXFloatingSelectorWidget(0, true, parent)
{
    setAccessibleName(tr("Thumbnail size"));
    connect(this, &oVIXFloatingSelectorWidget::optionSelected, this, &OvixThumbnailSizeWidget::sizeOptionSelected);
}

OvixThumbnailSizeWidget::~OvixThumbnailSizeWidget() = default;

void OvixThumbnailSizeWidget::setup(int current)
{
    clear();
    const auto add = [this, current](int size, const QString &label) {
        addButton({QString::number(size), label}, size == current);
    };
    add(OvixThumbnailSize::None, tr("No thumbnail"));
    add(OvixThumbnailSize::Small, tr("Small thumbnail"));
    add(OvixThumbnailSize::Medium, tr("Medium thumbnail"));
    add(OvixThumbnailSize::Large, tr("Large thumbnail"));
}

void OvixThumbnailSizeWidget::sizeOptionSelected(QString key)
{
    emit sizeSelected(key.toInt());
}
