#pragma once

#include "VelmoGuiExport.h"

#include <QCursor>

class QWidget;

/// The application's pointers, drawn for the screen that they are shown on.
///
/// A pointer is 32 x 32 logical pixels: a white shape with a black outline of one pixel, to be seen on any ground. Each
/// is drawn once for a scale and kept until the process ends, so asking again is cheap and gives an equal cursor. GUI
/// thread only, while there is a QGuiApplication.
class VELMO_GUI_EXPORT VelmoCursor
{
public:
    /// What a pointer says.
    enum Shape {
        /// The usual pointer.
        Arrow,
        /// Over what can be dragged, such as the ground of the view.
        OpenHand,
        /// While it is dragged.
        ClosedHand,
        /// Moves an object in any direction.
        Move,
        /// Left and right edges.
        ResizeHorizontal,
        /// Top and bottom edges.
        ResizeVertical,
        /// Top left and bottom right corners.
        ResizeDiagonalDown,
        /// Top right and bottom left corners.
        ResizeDiagonalUp,
        /// Turns an object.
        Rotate,
        /// Comes nearer to a point of the view.
        Zoom,
        /// Takes an object or a value from the view.
        Pick,
        /// Sets a person at the cross.
        PlacePerson,
        /// Sets a vehicle at the cross.
        PlaceVehicle,
        /// Draws the path of a motion with the pencil's tip.
        DrawPath,
        /// What is dragged cannot be dropped here.
        Forbidden,
        /// The application is busy.
        Wait,
    };

    /// How many shapes there are, from 0.
    static constexpr int ShapeCount = Wait + 1;
    /// Width and height of every pointer, in logical pixels.
    static constexpr int Extent = 32;

    /// The pointer for a screen of this scale. Where its picture is missing, or at a scale that is not from 0.5 to 8,
    /// it is the toolkit's standard cursor that comes nearest to it; for a value that is no shape, the standard arrow.
    static QCursor cursor(Shape shape, double devicePixelRatio);
    /// The pointer for the screen that @p widget is on; without a widget, for the densest screen. A widget that moves
    /// to a screen of another scale has to ask again.
    static QCursor cursorFor(Shape shape, const QWidget *widget);
};
