#pragma once

#include "foundation/DeferredListWidget.h"

#include <QSet>

/// The list inside the project list and the scene list: rows are widgets, one of which may be selected.
class BrowserListWidget : public DeferredListWidget
{
    Q_OBJECT

public:
    explicit BrowserListWidget(QWidget *parent = nullptr);
    ~BrowserListWidget() override;

    /// Shows @p row in the place of @p item, which is in the list.
    void addRow(QListWidgetItem *item, QWidget *row);

    /// Selects the item and scrolls it to the middle, once more when a list off screen is shown: its middle is not
    /// known before.
    void select(QListWidgetItem *item);
    /// The first selected row of the first @p count ones, or -1.
    int selectedRow(qsizetype count) const;

    /// Tells the rows whose place in the selection has changed. The others are left alone: restyling a row costs far
    /// more than looking at it.
    template <class Row> void showSelectionIn(const QList<Row *> &rows) const
    {
        const QList<QListWidgetItem *> items = selectedItems();
        const QSet<QListWidgetItem *> selected(items.cbegin(), items.cend());
        for (Row *row : rows) {
            const bool isSelected = selected.contains(row->getItem());
            if (row->isSelected() != isSelected)
                row->setSelected(isSelected);
        }
    }

protected:
    void showEvent(QShowEvent *event) override;

private:
    bool m_centreWhenShown = false;
};
