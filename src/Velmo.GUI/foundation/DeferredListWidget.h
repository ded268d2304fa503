#pragma once

#include "foundation/DeferredRows.h"

#include <QList>
#include <QListWidget>
#include <QPointer>

/// A list of row widgets that stays fast while it is filled on screen; see `DeferredRows`.
class DeferredListWidget : public QListWidget
{
    Q_OBJECT

public:
    explicit DeferredListWidget(QWidget *parent = nullptr);
    ~DeferredListWidget() override;

    /// As `setItemWidget`, but the widget waits for its place outside the viewport. A widget of fixed width is centred
    /// in its row.
    void setRowWidget(QListWidgetItem *item, QWidget *widget);

    void doItemsLayout() override;

protected:
    void hideEvent(QHideEvent *event) override;

protected slots:
    void rowsInserted(const QModelIndex &parent, int first, int last) override;
    void updateEditorGeometries() override;

private:
    void centreWidgets();

    QList<QPointer<QWidget>> m_centredWidgets;
    DeferredRows m_deferred{this};
};
