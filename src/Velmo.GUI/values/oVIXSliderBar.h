#pragma once

#include "VelmoGuiExport.h"

#include <QLabel>

#include <memory>

/// A flat horizontal bar that shows a filled range between two markers and reports where it is dragged.
///
/// The left button picks a ratio, 0 at the left edge and 1 at the right one; what the ratio means is the owner's
/// business, and so is placing the markers with `posMarkers`: the bar does not move them itself. A drag emits
/// `valueStarted` at the press, which picks nothing yet, `valueChanged` for every move, and `valueChanged` and
/// `valueFinished` at the release. Other buttons, the wheel and the keyboard do nothing.
///
/// The look is a style sheet that the bar makes from its state and applies while painting, when it has changed; a sheet
/// given from outside is replaced by it. Under the pointer the markers are bright lines round a bluish fill.
class VELMO_GUI_EXPORT oVIXSliderBar : public QLabel
{
    Q_OBJECT
    // For forms; see the setters.
    Q_PROPERTY(bool borderLeft MEMBER m_borderLeft WRITE setBorderLeft)
    Q_PROPERTY(bool borderRight MEMBER m_borderRight WRITE setBorderRight)
    Q_PROPERTY(bool roundedLeft MEMBER m_roundedLeft WRITE setRoundedLeft)
    Q_PROPERTY(bool roundedRight MEMBER m_roundedRight WRITE setRoundedRight)

public:
    /// A bar filled from edge to edge.
    explicit oVIXSliderBar(QWidget *parent = nullptr);
    ~oVIXSliderBar() override;

    /// Places the ends of the filled range, as fractions of the width, on the nearest whole pixels. A negative number
    /// leaves that marker where it is. 0 on the left means no marker: the fill starts at the edge. 1 or more on the
    /// right means that the fill runs to the edge. Initially the whole bar is filled.
    void posMarkers(float left, float right);
    /// Where the markers are now, as fractions of the width; -1 and 1 before they have been placed.
    float leftMarker() const;
    /// See `leftMarker`.
    float rightMarker() const;

    /// Adds a border of no width to the left of the sheet. On by default.
    void setBorderLeft(bool border);
    /// The same on the right.
    void setBorderRight(bool border);
    /// Rounds both left corners by 4 pixels. Off by default.
    void setRoundedLeft(bool rounded);
    /// The same on the right.
    void setRoundedRight(bool rounded);

    /// The last ratio picked, 0 to 1; 0 before the first.
    double getSelectedValue() const;

    /// Does what a whole drag to this ratio does, for assistive tools. Nothing while disabled; a ratio outside 0 to 1
    /// is clamped, and what is not a number is ignored.
    void pick(double ratio);

signals:
    /// A drag begins: the left button has been pressed.
    void valueStarted();
    /// The drag has picked this ratio, 0 to 1.
    void valueChanged(double ratio);
    /// The drag has ended. The bar may be deleted from all three.
    void valueFinished();

protected slots:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void markStyleDirty();
    void generateStyle();
    void select(double ratio);

    struct Style;
    std::unique_ptr<Style> m_style;
    float m_leftMarker = -1.0F;
    float m_rightMarker = 1.0F;
    double m_selectedValue = 0.0;
    bool m_hovered = false;
    bool m_appliedHover = false;
    bool m_styleDirty = true;
    bool m_borderLeft = true;
    bool m_borderRight = true;
    bool m_roundedLeft = false;
    bool m_roundedRight = false;
};
