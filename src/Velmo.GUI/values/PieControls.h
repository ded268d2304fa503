#pragma once

#include <QCoreApplication>

class OvixSvgButton;
class QDoubleSpinBox;
class QPoint;
class QWidget;
class oVIXSliderWidget;

/// What stands in the hole of the pie chart's ring while a slice is selected: a box with its share, and a lock.
///
/// The box is written and edited by the same signals; `isWriting` tells one from the other.
class PieControls
{
    Q_DECLARE_TR_FUNCTIONS(oVIXPieChartWidget)

public:
    /// The two become children of @p chart.
    explicit PieControls(QWidget *chart);

    oVIXSliderWidget *slider() const { return m_slider; }
    OvixSvgButton *lockButton() const { return m_lockButton; }

    void centreOn(const QPoint &centre);

    double share() const;
    bool isWriting() const { return m_writing; }
    /// Whether that is the share which the box shows, as far as its digits go.
    bool shows(double share) const;

    /// The share of a slice at rest: what the box shows counts as finished.
    void setShare(double share);
    /// In the middle of an edit: past the slider widget, which would take the edit for finished, and not at all where
    /// the box says it already, for the sake of what is being typed.
    void correctShare(double share);
    void setLock(bool selected, bool locked);
    /// Ends what is being typed, if anything is: the slider widget tells so when it has changed the share.
    void finishTyping();

private:
    oVIXSliderWidget *m_slider;
    QDoubleSpinBox *m_box; // the one of m_slider that is seen
    OvixSvgButton *m_lockButton;
    bool m_writing = false;
};
