#include "foundation/VelmoCursor.h"

#include "foundation/CursorPictures.h"

#include <QGuiApplication>
#include <QWidget>

#include <array>
#include <map>
#include <utility>

namespace {

constexpr double smallestRatio = 0.5;
constexpr double largestRatio = 8.0;

/// In the order of the shapes.
constexpr std::array<CursorPicture, VelmoCursor::ShapeCount> pictures = {{
    {":/Cursors/Arrow", {7, 4}, Qt::ArrowCursor},
    {":/Cursors/OpenHand", {16, 16}, Qt::OpenHandCursor},
    {":/Cursors/ClosedHand", {16, 16}, Qt::ClosedHandCursor},
    {":/Cursors/Move", {16, 16}, Qt::SizeAllCursor},
    {":/Cursors/ResizeHorizontal", {16, 16}, Qt::SizeHorCursor},
    {":/Cursors/ResizeVertical", {16, 16}, Qt::SizeVerCursor},
    {":/Cursors/ResizeDiagonalDown", {16, 16}, Qt::SizeFDiagCursor},
    {":/Cursors/ResizeDiagonalUp", {16, 16}, Qt::SizeBDiagCursor},
    {":/Cursors/Rotate", {16, 16}, Qt::SizeAllCursor},
    {":/Cursors/Zoom", {13, 13}, Qt::CrossCursor},
    {":/Cursors/Pick", {16, 16}, Qt::CrossCursor},
    {":/Design/PlacePerson", {9, 9}, Qt::CrossCursor},
    {":/Design/PlaceVehicle", {9, 9}, Qt::CrossCursor},
    {":/Design/DrawPath", {5, 26}, Qt::CrossCursor},
    {":/Cursors/Forbidden", {16, 16}, Qt::ForbiddenCursor},
    {":/Cursors/Wait", {16, 16}, Qt::WaitCursor},
}};

} // namespace

QCursor VelmoCursor::cursor(Shape shape, double devicePixelRatio)
{
    const int row = shape;
    if (row < 0 || row >= ShapeCount)
        return QCursor(Qt::ArrowCursor);
    const CursorPicture &picture = pictures[size_t(row)];
    // Written so that a ratio that is not a number fails as well.
    const bool drawable = devicePixelRatio >= smallestRatio && devicePixelRatio <= largestRatio;
    if (!drawable)
        return QCursor(picture.standard);

    // Never freed: a cursor must not outlive the application object, and nothing tells when that goes.
    static auto *const kept = new std::map<std::pair<int, double>, QCursor>;
    const auto [place, isNew] = kept->try_emplace({row, devicePixelRatio});
    if (isNew)
        place->second = CursorPictures::draw(picture, Extent, devicePixelRatio);
    return place->second;
}

QCursor VelmoCursor::cursorFor(Shape shape, const QWidget *widget)
{
    return cursor(shape, widget ? widget->devicePixelRatioF() : qGuiApp->devicePixelRatio());
}
