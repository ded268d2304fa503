#include "values/SliderBarSheets.h"

#include "foundation/VelmoPalette.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String outside = VelmoPalette::raised;
constexpr QLatin1String marker = VelmoPalette::text;
constexpr QLatin1String normalFill = VelmoPalette::disabledText;
constexpr QLatin1String hoverFill("rgb(65, 84, 92)");

constexpr qsizetype usualLength = 800;

/// The width of this many pixels as a fraction of the bar's.
float pixels(double count, int width)
{
    return width > 0 ? float(count / width) : 0.0F;
}

void beginGradient(QString &sheet)
{
    sheet += "background: qlineargradient(spread:pad, x1:0, y1:0, x2:1, y2:0, "_L1;
}

void addStop(QString &sheet, float position, QLatin1String colour)
{
    sheet += "stop:"_L1;
    sheet += QString::number(double(std::clamp(position, 0.0F, 1.0F)), 'g', 6);
    sheet += ' '_L1;
    sheet += colour;
    sheet += ", "_L1;
}

void addStart(QString &sheet, QLatin1String colour)
{
    sheet += "stop:0.0 "_L1;
    sheet += colour;
    sheet += ", "_L1;
}

/// @p position is the stop's beginning, "stop:1 " or "stop : 1 ": either look has its own.
void endGradient(QString &sheet, QLatin1String position, QLatin1String colour)
{
    sheet += position;
    sheet += colour;
    sheet += ");"_L1;
}

/// The bright line at the right end of the range, three pixels wide.
void addRightMarker(QString &sheet, float right, float edge)
{
    addStop(sheet, right - edge, hoverFill);
    addStop(sheet, right - 0.5F * edge, marker);
}

void addBehindRightMarker(QString &sheet, float right, float edge)
{
    addStop(sheet, right + 2 * edge, marker);
    addStop(sheet, right + 2.5F * edge, outside);
    endGradient(sheet, "stop : 1 "_L1, outside);
}

void addHoverGradient(QString &sheet, float left, float right, float edge)
{
    beginGradient(sheet);
    if (left > 0) {
        if (left - edge > 0) {
            addStop(sheet, left - edge, outside);
            addStop(sheet, left - 0.5F * edge, marker);
        } else {
            addStart(sheet, marker);
        }
        if (left + 2.5F * edge >= 1) {
            endGradient(sheet, "stop : 1 "_L1, marker);
            return;
        }
        addStop(sheet, left + 2 * edge, marker);
        if (right - edge > left + 2.5F * edge)
            addStop(sheet, left + 2.5F * edge, hoverFill);
        addRightMarker(sheet, right, edge);
        addBehindRightMarker(sheet, right, edge);
        return;
    }
    addRightMarker(sheet, right, edge);
    if (right + 2.5F * edge < 1)
        addBehindRightMarker(sheet, right, edge);
    else
        endGradient(sheet, "stop : 1 "_L1, marker);
}

void addNormalGradient(QString &sheet, float left, float right, float edge)
{
    beginGradient(sheet);
    if (left > 0) {
        addStart(sheet, outside);
        if (left - edge > 0) {
            addStop(sheet, left - 0.5F * edge, outside);
            addStop(sheet, left, normalFill);
        }
        if (right + edge < 1) {
            addStop(sheet, right + 0.5F * edge, normalFill);
            addStop(sheet, right + edge, outside);
            endGradient(sheet, "stop:1 "_L1, outside);
        } else {
            endGradient(sheet, "stop:1 "_L1, normalFill);
        }
        return;
    }
    addStop(sheet, right - 0.5F * edge, normalFill);
    addStop(sheet, right, outside);
    endGradient(sheet, "stop:1 "_L1, outside);
}

QString sheetOf(const SliderBarSheets::Look &look, bool hovered)
{
    QString sheet;
    sheet.reserve(usualLength);
    sheet += "QLabel {color:"_L1;
    sheet += hovered ? VelmoPalette::accent : VelmoPalette::secondaryText;
    sheet += ";border-top:0px solid;border-bottom:0px solid;"_L1;
    if (look.borderLeft)
        sheet += "border-left:0px solid;"_L1;
    if (look.borderRight)
        sheet += "border-right:0px solid;"_L1;
    if (look.roundedLeft)
        sheet += "border-top-left-radius: 4px; border-bottom-left-radius: 4px;"_L1;
    if (look.roundedRight)
        sheet += "border-top-right-radius: 4px; border-bottom-right-radius: 4px;"_L1;

    if (look.left <= 0 && look.right >= 1) {
        sheet += "background: "_L1;
        sheet += hovered ? hoverFill : normalFill;
        sheet += ';'_L1;
    } else {
        const float edge = pixels(1.25, look.width);
        hovered ? addHoverGradient(sheet, look.left, look.right, edge)
                : addNormalGradient(sheet, look.left, look.right, edge);
    }
    sheet += "}QLabel:disabled {\tbackground-color:rgba(59,59,59,127); \tcolor:rgb(105,105,105);}"_L1;
    return sheet;
}

} // namespace

SliderBarSheets SliderBarSheets::of(const Look &look)
{
    return {sheetOf(look, true), sheetOf(look, false)};
}
