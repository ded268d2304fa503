#pragma once

#include "VelmoGuiExport.h"

#include <QProgressBar>

/// A bar of four nested rounded bands: the track, what is done (the bar's value), a crop range in it, and the part of
/// the crop that has been played. No text. A click picks a value.
///
/// Assistive tools are told a progress bar whose value is what is done; setting it picks a value as a click does.
///
/// Bands are drawn for a minimum of 0. With a maximum of 0 only the track shows.
class VELMO_GUI_EXPORT oVIXProgressBar : public QProgressBar
{
    Q_OBJECT
    // For forms; see the setters.
    Q_PROPERTY(bool clickable READ isClickable WRITE setClickable)

public:
    /// A bar from 0 to 100 at its start.
    oVIXProgressBar();
    /// The same with a parent.
    explicit oVIXProgressBar(QWidget *parent);
    ~oVIXProgressBar() override;

    /// The crop range and the end of the played part, in values of the bar, all 0 at first. What lies outside the bar
    /// or beyond what is done does not show. The change shows at the next paint, which this does not ask for.
    void setBands(int cropStart, int cropEnd, int playValue);

    /// The value picked by the last click, 0 at first.
    int getSelectedValue() const;
    /// Whether clicks pick values (default yes).
    void setClickable(bool clickable);
    /// See `setClickable`.
    bool isClickable() const;
    /// Forgets the picked value and takes clicks again.
    void initValues();

signals:
    /// A mouse button was released over the bar, or beyond its ends after a press on it.
    void valuePicked();

protected:
    /// Draws the bands over the whole of @p rect.
    void draw(QRect &rect);

    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    friend class AccessiblePickingBar;

    void pick(int value);

    int m_selectedValue = 0;
    int m_cropStart = 0;
    int m_cropEnd = 0;
    int m_playValue = 0;
    bool m_clickable = true;
};
