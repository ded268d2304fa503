#pragma once

#include "VelmoGuiExport.h"

#include <QWidget>

#include <memory>

class QLayoutItem;

namespace Ui {
class oVIXMinMaxCloseWidget;
}

/// The row of window buttons: minimise, maximise or restore, close. It reports clicks; the application changes the
/// window and tells the row with `setMaximized`. 32 logical pixels high.
class VELMO_GUI_EXPORT oVIXMinMaxCloseWidget : public QWidget
{
    Q_OBJECT

public:
    /// A row with these buttons; those that are left out stay hidden.
    oVIXMinMaxCloseWidget(bool showMinimize, bool showMaximize, bool showClose, QWidget *parent);
    ~oVIXMinMaxCloseWidget() override;

    /// Whether the middle button shows "restore".
    void setMaximized(bool maximized);
    /// Hides all three buttons; the row keeps its height.
    void hideCloseButtons();

    /// Puts another control into the row. @p index counts from the left, a negative one and one past the end
    /// append; the row owns the control. Null is ignored.
    void insertWidget(QWidget *widget, int index);
    /// The same for a space or a layout.
    void insertItem(QLayoutItem *item, int index);

    /// The row's height also without any button: a menu bar asks for it.
    QSize sizeHint() const override;

signals:
    /// The minimise button has been clicked.
    void s_minimize();
    /// The middle button has been clicked, whatever it shows.
    void s_maximize();
    /// The close button has been clicked.
    void s_close();

private:
    int placeInRow(int index) const;

    std::unique_ptr<Ui::oVIXMinMaxCloseWidget> m_ui;
};
