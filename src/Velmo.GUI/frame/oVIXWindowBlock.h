#pragma once

#include "VelmoGuiExport.h"

#include <QPixmap>
#include <QPointer>
#include <QWidget>

/// A translucent dark pane over a window that must not be used now.
///
/// The pane follows its parent's size and stays above the parent's other children. It may show a picture under the
/// dark, over the area of a target widget, and may hold a widget of the application, kept as large as the pane.
class VELMO_GUI_EXPORT oVIXWindowBlock : public QWidget
{
    Q_OBJECT

public:
    /// Black with alpha 190.
    static const QColor BackgroundColor;

    /// A pane over @p parent. It follows that size from now on, shown or not.
    explicit oVIXWindowBlock(QWidget *parent);
    ~oVIXWindowBlock() override;

    /// Copies the picture; null takes it away.
    void setBackgroundPixmap(QPixmap *pixmap);
    /// Fills the picture, if there is one, with the background colour.
    void clearBackgroundPixmap();
    /// Paints into the picture, if there is one.
    void drawPixmapInRect(const QRect &rect, const QPixmap &pixmap);
    /// The widget takes the pane as its parent. Null forgets the one before, which stays a child.
    void setCustomWidget(QWidget *widget);
    /// The widget whose area the picture fills. Not owned.
    void setCentralWidget(QWidget *widget);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

    /// Draws the picture and the dark pane.
    void paintBackground(QPainter &painter) const;

private:
    void follow(QWidget *parent);
    void resizeToParent();

    QPixmap m_backgroundPixmap;
    QPointer<QWidget> m_pixmapTarget;
    QPointer<QWidget> m_customWidget;
};
