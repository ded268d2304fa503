#pragma once

#include "VelmoGuiExport.h"

#include <QLabel>

/// A text or picture that can be clicked.
///
/// `clicked` comes on press; connect to `clickReleased` to act on release. Other buttons are left to the parent widget.
/// With a focus policy set, Space and Return press it.
class VELMO_GUI_EXPORT QClickableLabel : public QLabel
{
    Q_OBJECT

public:
    explicit QClickableLabel(QWidget *parent = nullptr, Qt::WindowFlags flags = {});
    explicit QClickableLabel(const QString &text, QWidget *parent = nullptr, Qt::WindowFlags flags = {});
    ~QClickableLabel() override;

    /// Leaves left presses and releases to the parent widget; double clicks are still answered. Off by default.
    void setIgnoreSingleClick(bool ignore);
    bool ignoresSingleClick() const;

signals:
    void clicked();
    void doubleClicked();
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
