#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <QList>
#include <QSize>

#include <utility>

/// What Designer is told about one widget class of the library.
struct DesignerEntry
{
    QString className;
    QWidget *(*create)(QWidget *parent) = nullptr;

    QString group; ///< heading of the widget box
    QString toolTip; ///< what the widget is, in a few words
    QString whatsThis;
    QSize size; ///< of a widget that has just been dropped on a form, in logical pixels
    /// Texts and paths of resources that a new widget starts with, so that there is something to see.
    QList<std::pair<QString, QString>> properties;
    bool isContainer = false; ///< whether other widgets may be dropped into it
};

/// One widget class as Designer asks for it. Header, icon and object name follow from the class name.
class DesignerWidget final : public QDesignerCustomWidgetInterface
{
public:
    explicit DesignerWidget(DesignerEntry entry);
    ~DesignerWidget() override;

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget *createWidget(QWidget *parent) override;
    QString domXml() const override;

private:
    DesignerEntry m_entry;
};
