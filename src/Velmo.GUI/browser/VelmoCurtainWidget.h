#pragma once

#include "VelmoGuiExport.h"

#include <QString>
#include <QWidget>

#include <memory>

namespace Ui {
class VelmoCurtainWidget;
}

/// A section of a panel that can be collapsed: an arrow, a title and a subtitle above a container that the application
/// fills, with a thin line below.
///
/// A click on the arrow shows or hides the container. Title and subtitle are plain text on one line and give way at the
/// right. A focus policy given to the curtain is its arrow's: Space and Return then press it. Assistive tools see the
/// arrow as a button with the title that is expanded or not.
class VELMO_GUI_EXPORT VelmoCurtainWidget : public QWidget
{
    Q_OBJECT
    // For forms; see the setters.
    Q_PROPERTY(QString title READ getTitle WRITE setTitle)
    Q_PROPERTY(QString subtitle READ getSubtitle WRITE setSubtitle)
    Q_PROPERTY(bool expanded READ isExpanded WRITE setExpanded)

public:
    /// Expanded at first.
    explicit VelmoCurtainWidget(QWidget *parent = nullptr);
    ~VelmoCurtainWidget() override;

    /// The title, "Title" at first; the arrow's name for assistive tools too.
    void setTitle(const QString &title);
    /// The whole title, however much of it shows.
    QString getTitle() const;
    /// The subtitle, behind the title in grey italics; "Subtitle" at first.
    void setSubtitle(const QString &subtitle);
    /// The whole subtitle, however much of it shows.
    QString getSubtitle() const;

    /// Appends a widget to the container, which owns it from then on. Null, the curtain itself and what it stands in
    /// are ignored.
    void addToContainerWidget(QWidget *widget);

    /// Shows or hides the container.
    void setExpanded(bool expanded);
    /// Whether the container is on view: a curtain that is hidden, or inside something hidden, counts as collapsed.
    bool isExpanded() const;

private slots:
    void toggled();

private:
    std::unique_ptr<Ui::VelmoCurtainWidget> m_ui;
};
