#pragma once

#include "VelmoGuiExport.h"

#include <QString>

class QPainter;
class QWidget;

/// One step of a guided tour: its texts, and in a class of the application its picture.
///
/// The tour does not own its steps: they have to outlive it.
class VELMO_GUI_EXPORT oVIXGuideStep
{
public:
    /// A step with these texts.
    oVIXGuideStep(QString title, QString description);
    /// Copies the texts.
    oVIXGuideStep(const oVIXGuideStep &other);
    /// Takes over the texts of @p other; a tour that shows this step shows them when it comes to the step again.
    oVIXGuideStep &operator=(const oVIXGuideStep &other);
    virtual ~oVIXGuideStep();

    /// Draws the picture of the step on all of @p overlay, in its coordinates. The painter is antialiased and clipped
    /// to what is revealed by now; it belongs to this step alone and may be left in any state. Called by every repaint
    /// of a transition, so keep what takes long to draw.
    virtual void paintStep(QPainter *painter, QWidget *overlay) = 0;
    /// The line above the description.
    virtual QString stepTitle() const;
    /// Shown without word wrap: break long lines.
    virtual QString stepDescription() const;

private:
    QString m_title;
    QString m_description;
};
