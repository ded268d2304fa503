#pragma once

#include "VelmoGuiExport.h"

#include <QWidget>

#include <memory>

namespace Ui {
class VelmoCurtainLineWidget;
}

/// A thin dark line that separates one section of a panel from the next.
class VELMO_GUI_EXPORT VelmoCurtainLineWidget : public QWidget
{
    Q_OBJECT

public:
    /// A line that shows.
    explicit VelmoCurtainLineWidget(QWidget *parent = nullptr);
    ~VelmoCurtainLineWidget() override;

    /// Shows or hides the line; the widget keeps its margins. Shown at first.
    void setLineVisible(bool visible);

private:
    std::unique_ptr<Ui::VelmoCurtainLineWidget> m_ui;
};
