#pragma once

#include "VelmoGuiExport.h"

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>

/// Lets the user move a window by a widget that serves as its title, and ask for it to be maximised by a double click.
///
/// The caller installs the filter on the title widget. No event is consumed. Only the left button counts, and a press
/// exactly on the top left pixel of the window's frame starts no drag.
class VELMO_GUI_EXPORT oVIXTitleBarFilter : public QObject
{
    Q_OBJECT

public:
    /// The filter is a child of @p window. With a null widget it does nothing.
    oVIXTitleBarFilter(QWidget *titleWidget, QWidget *window);
    ~oVIXTitleBarFilter() override;

    /// Whether a press at @p pos (title widget's coordinates) is on the title itself: here, not on one of its children.
    virtual bool canClick(const QPoint &pos);
    /// What a double click asks for. Does nothing here.
    virtual void maximize();

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    /// The widget that serves as the title; null once it is gone.
    QWidget *titleWidget() const;
    /// The window that is moved; null without one.
    QWidget *window() const;

private:
    void press(const QMouseEvent &event);
    void drag(const QMouseEvent &event);

    QPointer<QWidget> m_titleWidget;
    QPointer<QWidget> m_window;
    QPoint m_dragOffset; // null: no drag
};
