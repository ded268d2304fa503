#pragma once

#include "VelmoGuiExport.h"

#include <QLabel>

/// A text or picture that can be clicked.
///
/// `clicked` comes on press; connect to `clickReleased` to act on release. Other buttons are left to the parent widget.
/// With a focus policy set, Space and Return press it. Assistive tools see a button named by its text.
class VELMO_GUI_EXPORT QClickableLabel : public QLabel
{
    Q_OBJECT
    // For forms; see the setters.
    Q_PROPERTY(bool ignoreSingleClick READ ignoresSingleClick WRITE setIgnoreSingleClick)

public:
    /// An empty label.
    explicit QClickableLabel(QWidget *parent = nullptr, Qt::WindowFlags flags = {});
    /// A label that shows @p text, plain or rich as in any `QLabel`.
    explicit QClickableLabel(const QString &text, QWidget *parent = nullptr, Qt::WindowFlags flags = {});
    ~QClickableLabel() override;

    /// Leaves left presses and releases to the parent widget; double clicks are still answered. Off by default.
    void setIgnoreSingleClick(bool ignore);
    /// See `setIgnoreSingleClick`.
    bool ignoresSingleClick() const;

signals:
    /// The left button has been pressed on the label, or `click` called.
    void clicked();
    /// The second press of a left double click, in place of its `clicked`.
    void doubleClicked();
    /// The left button has been released after a press on the label, wherever the pointer is by then; after `clicked`.
    void clickReleased();

public slots:
    /// Does what a left press and release do, for the keyboard and for assistive tools. Nothing while disabled or while
    /// single clicks are ignored.
    void click();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool answersLinkKeys() const;
    bool answersSingleClick(const QMouseEvent *event) const;

    bool m_ignoreSingleClick = false;
};
