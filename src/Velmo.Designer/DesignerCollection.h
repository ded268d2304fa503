#pragma once

#include "DesignerWidget.h"

#include <QObject>

#include <memory>
#include <vector>

/// The plug-in: every widget of the library that a form can create.
class DesignerCollection final : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit DesignerCollection(QObject *parent = nullptr);
    ~DesignerCollection() override;

    /// Owned by the plug-in.
    QList<QDesignerCustomWidgetInterface *> customWidgets() const override;

private:
    std::vector<std::unique_ptr<DesignerWidget>> m_widgets;
};
