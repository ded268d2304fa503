#pragma once

#include "VelmoGuiExport.h"

#include <QAbstractSpinBox>

#include <memory>

class SliderEditors;

namespace Ui {
class oVIXSliderWidget;
}

/// A row of 20 pixels that edits a number, or both ends of a range: a slider bar with a prefix on it, number boxes and
/// step arrows. In the lateral mode there is no bar, only a framed number between two arrows.
///
/// The user drags the bar, types, presses the arrows or the Up and Down keys, or turns the wheel over a box. Every new
/// value is announced by `valueChanged` (`valueMinChanged` for the lower end of a range); `valueStarted` comes before a
/// drag, and `valueFinished` when an edit is complete: owners commit then. An edit that leaves everything within 1e-6
/// of what was last committed or set finishes without `valueFinished`; only Return and Enter always emit it, when the
/// key is released.
///
/// Every value is kept by integer and by double boxes, the setters set both, and a mode reads those that it shows.
/// So a setter may emit `valueChanged(int)` as well as `valueChanged(double)`. Integer boxes take doubles without their
/// fraction, and the nearest they can hold of what is too large.
///
/// The bar ends at the slider maximum, a soft limit; the boxes go up to their own maximum, and the bar is full then. A
/// drag rounds to whole numbers where snapping is on, else to hundredths from the minimum. In a range it moves the
/// nearer handle. When an edit finishes, the lower end's boxes are limited to the upper end.
///
/// Assistive tools are told a slider with the accessible name, else the tool tip, else the prefix; its boxes and its
/// bar are called as it is.
///
/// Numbers given to a setter that are not numbers make it do nothing; infinite ones become the largest finite ones.
/// The widget may be destroyed by any signal of a drag or a setter. While the user types or steps, a box has not ended
/// its work when the signal comes: use `deleteLater`.
class VELMO_GUI_EXPORT oVIXSliderWidget : public QAbstractSpinBox
{
    Q_OBJECT
    // For forms, in the order that they are set in: each is limited by those before it. See the setters.
    Q_PROPERTY(SLIDERMODE mode READ mode WRITE changeMode)
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double sliderMaximum READ sliderMaximum WRITE setSliderMaximum)
    Q_PROPERTY(double spinBoxMaximum READ spinBoxMaximum WRITE setSpinBoxMaximum)
    Q_PROPERTY(double value READ value WRITE setValue)
    Q_PROPERTY(double valueMin READ valueMin WRITE setValueMin)
    Q_PROPERTY(QString prefix READ getPrefix WRITE setPrefix)
    Q_PROPERTY(bool snapToInteger MEMBER m_snapToInteger WRITE setSnapToInteger)

public:
    /// Integer modes snap to whole numbers, the others do not; see `setSnapToInteger`.
    enum SLIDERMODE : int {
        IntegerRange = 0, ///< two whole numbers, the lower one at the left of the bar
        SingleInteger = 1, ///< a whole number
        DoubleRange = 2, ///< two numbers, the lower one at the left of the bar
        SingleDouble = 3, ///< a number
        Lateral = 4, ///< no bar: a number between a left and a right arrow
        LateralPlain = 5 ///< the same as `Lateral`
    };
    Q_ENUM(SLIDERMODE)

    /// A widget in the mode `SingleInteger`.
    explicit oVIXSliderWidget(QWidget *parent = nullptr);
    ~oVIXSliderWidget() override;

    /// Shows the editors of this mode; values stay. Resets the snapping and the layout's margins. A number that is no
    /// mode shows nothing.
    void changeMode(SLIDERMODE mode);

    /// The value or upper end: its limits, value and step, in this order. @p max becomes the slider maximum too.
    void setLimitsAndValues(double min, double max, double value, double step);
    /// The same for the lower end of a range. @p max becomes the slider maximum too.
    void setLimitsAndValuesMin(double min, double max, double value, double step);

    /// Sets the value or upper end, and takes it for committed: `valueFinished` is only emitted when the boxes have
    /// changed it.
    void setValue(double value);
    /// The same for the lower end of a range.
    void setValueMin(double value);

    /// Lower limit of all boxes.
    void setMinimum(double minimum);
    /// Upper limit of the bar and of all boxes.
    void setMaximum(double maximum);
    /// The value at the right end of the bar, the soft limit. Initially 0.
    void setSliderMaximum(double maximum);
    /// Upper limit of all boxes, the hard limit.
    void setSpinBoxMaximum(double maximum);
    /// Step of the value or upper end; the lower end keeps its own. Integer boxes take it without its fraction: they
    /// stand still when it is below 1.
    void setSingleStep(double step);
    /// Digits behind the point of the double boxes, which round their values to them: 2 at first. As in the toolkit, a
    /// number out of range counts as the nearest.
    void setDecimals(int decimals);

    /// The text on the bar, or before the number where there is no bar.
    void setPrefix(const QString &prefix);
    /// See `setPrefix`; empty at first.
    QString getPrefix() const;
    /// The text behind every number.
    void setSuffix(const QString &suffix);

    /// Whether a drag rounds to whole numbers. The next `changeMode` resets it.
    void setSnapToInteger(bool snap);

    /// Shows number and prefix of the lateral mode in this colour, written as in a style sheet.
    void setColorNoSliderMode(const QString &colour);

    /// The value, or the upper end of a range.
    double value() const;
    /// The lower end of a range; 0 in the other modes.
    double valueMin() const;
    /// Lower limit of the value's box in this mode.
    double minimum() const;
    /// Upper limit of that box, the hard limit.
    double spinBoxMaximum() const;
    /// The value at the right end of the bar, the soft limit.
    double sliderMaximum() const;

    /// Whether one of the boxes has the keyboard.
    bool hasFocus() const;

    /// Moves the bar's markers to the values. Every change of a value does so.
    void updateSlider();

    /// Those of the row, unlike those of a spin box.
    QSize sizeHint() const override;
    /// Those of the row, unlike those of a spin box.
    QSize minimumSizeHint() const override;

signals:
    /// A drag of the bar begins.
    void valueStarted();
    /// The value or upper end of an integer mode has changed; in a lateral mode that without its fraction, before the
    /// other signal of this name.
    void valueChanged(int value);
    /// The value or upper end of any other mode has changed.
    void valueChanged(double value);
    /// The lower end of an integer range has changed.
    void valueMinChanged(int value);
    /// The lower end of a double range has changed.
    void valueMinChanged(double value);
    /// An edit is complete: the last of the signals that it sends.
    void valueFinished();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private slots:
    void fnSliderMoved(double ratio);
    void fnSpinboxValueChanged();
    void fnSpinboxArrowClicked();
    void fnLateralArrowClicked();
    void fnSpinboxFinished();
    void fnValueFinished();

private:
    friend class AccessibleSliderWidget;

    SLIDERMODE mode() const;
    double snapRatio(double ratio) const;
    double ratioOfMinimum() const;
    double ratioOfValue() const;
    void updateMinLimits();
    void setSliderEnd(double maximum);
    void stepAndFinish(QAbstractSpinBox *box, bool up);
    QAbstractSpinBox *valueEditor() const;
    QList<QAbstractSpinBox *> editors() const;
    void nameEditors();

    std::unique_ptr<Ui::oVIXSliderWidget> m_ui;
    std::unique_ptr<SliderEditors> m_editors;
    QString m_prefix;
    bool m_snapToInteger = false;
    double m_sliderMaximum = 0.0;
    double m_lastFinishedValue = 0.0;
    double m_lastFinishedMinimum = 0.0;
};
