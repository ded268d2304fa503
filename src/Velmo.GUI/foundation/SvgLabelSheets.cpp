#include "foundation/SvgLabelSheets.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct SchemeColours
{
    QString text;
    QString background;
    QString hover;
    QString checked;
};

SchemeColours coloursOf(OvixSvgLabel::ColorScheme scheme)
{
    switch (scheme) {
    case OvixSvgLabel::Black:
        return {u"rgb(59,59,59)"_s, u"rgb(28,28,28)"_s, u"rgba(255,255,255,38)"_s, u"rgb(28,28,28)"_s};
    case OvixSvgLabel::Charcoal:
        return {u"rgb(59,59,59)"_s, u"rgb(39,39,39)"_s, u"rgb(81,81,81)"_s, u"rgb(81,81,81)"_s};
    case OvixSvgLabel::CharcoalBlue:
        return {u"rgb(219,219,219)"_s, u"rgb(39,39,39)"_s, u"rgb(116, 211, 252)"_s, u"rgb(116, 211, 252)"_s};
    case OvixSvgLabel::Grey:
        return {u"rgb(59,59,59)"_s, u"rgb(81,81,81)"_s, u"rgb(59,59,59)"_s, u"rgb(219,219,219)"_s};
    case OvixSvgLabel::White:
        return {u"rgb(59,59,59)"_s, u"rgb(219,219,219)"_s, u"rgb(219,219,219)"_s, u"rgb(219,219,219)"_s};
    case OvixSvgLabel::GraphiteBlue:
        return {u"rgb(59,59,59)"_s, u"rgb(59,59,59)"_s, u"rgba(255,255,255,38)"_s, u"rgba(116, 211, 252,48)"_s};
    }
    return {};
}

/// "\t<name>-left:1px;..." for the four sides, or nothing when all are 0.
QString sides(const QString &name, const QMargins &values)
{
    if (values.isNull())
        return {};
    return u"\t%1-left:%2px;\t%1-top:%3px;\t%1-right:%4px;\t%1-bottom:%5px;"_s.arg(
        name, QString::number(values.left()), QString::number(values.top()), QString::number(values.right()),
        QString::number(values.bottom()));
}

QString tailOf(const SvgLabelSheets::Look &look)
{
    QString tail = u"\tborder-color:transparent;"_s;
    tail += sides(u"padding"_s, look.padding);
    tail += sides(u"margin"_s, look.backgroundMargins);
    if (look.roundedBorder > 0)
        tail += u"\tborder-radius:%1px;"_s.arg(QString::number(look.roundedBorder));
    return tail;
}

} // namespace

SvgLabelSheets SvgLabelSheets::of(const Look &look)
{
    SchemeColours colours = coloursOf(look.scheme);
    const QString transparent = u"transparent"_s;
    if (!look.backgroundVisible)
        colours.background = transparent;
    if (!look.hoverVisible)
        colours.hover = transparent;
    if (!look.checkedBackgroundVisible)
        colours.checked = transparent;

    const QString tail = tailOf(look);
    return {
        u"QLabel { color:"_s + colours.text + u"; background-color:"_s + colours.background + u";"_s + tail + u"}"_s
            + u"QLabel:hover { background-color:"_s + colours.hover + u";"_s + tail + u"}"_s,
        u"QLabel { background-color:"_s + colours.checked + u";"_s + tail + u"}"_s,
    };
}
