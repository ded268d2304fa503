#include "DesignerCollection.h"

#include "DesignerWidgets.h"

DesignerCollection::DesignerCollection(QObject *parent) : QObject(parent)
{
    for (DesignerEntry &entry : designerWidgets())
        m_widgets.push_back(std::make_unique<DesignerWidget>(std::move(entry)));
}

DesignerCollection::~DesignerCollection() = default;

QList<QDesignerCustomWidgetInterface *> DesignerCollection::customWidgets() const
{
    QList<QDesignerCustomWidgetInterface *> widgets;
    for (const std::unique_ptr<DesignerWidget> &widget : m_widgets)
        widgets.append(widget.get());
    return widgets;
}
