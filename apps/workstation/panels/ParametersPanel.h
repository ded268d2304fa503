#pragma once

#include "window/ViewOptions.h"

#include <oVIXDock.h>

class CrowdEditor;
class VelmoCurtainWidget;
class oVIXCombo;

/// How the open scene is shown, and what its crowd is made of.
class ParametersPanel : public oVIXDock
{
    Q_OBJECT

public:
    explicit ParametersPanel(QMainWindow *window);

    CrowdEditor *crowd() const;
    const ViewOptions &options() const;
    /// Shows a zoom that comes from elsewhere; it need not be one of those offered.
    void setZoom(double zoom);

signals:
    void optionsChanged(const ViewOptions &options);

private:
    VelmoCurtainWidget *addSection(const QString &title, const QString &subtitle);
    oVIXCombo *addCombo(VelmoCurtainWidget *section, const QString &caption);
    /// Lets @p change alter the options when the user chooses in @p combo.
    template <class Change> void onChoice(oVIXCombo *combo, Change change);

    ViewOptions m_options;
    QWidget *m_content;
    oVIXCombo *m_zoom;
    CrowdEditor *m_crowd;
};
