#include "foundation/SvgLabelSheets.h"

#include "foundation/VelmoPalette.h"

using namespace Qt::StringLiterals;

namespace {

struct SchemeColours
{
    QLatin1String text;
    QLatin1String background;
    QLatin1String hover;
    QLatin1String checked;
};

SchemeColours coloursOf(OvixSvgLabel::ColorScheme scheme)
{
    using namespace VelmoPalette;
    switch (scheme) {
    case OvixSvgLabel::Black:
        return {raised, deep, hover, deep};
    case OvixSvgLabel::Charcoal:
        return {raised, background, disabledText, disabledText};
    case OvixSvgLabel::CharcoalBlue:
        return {text, background, accent, accent};
    case OvixSvgLabel::Grey:
        return {raised, disabledText, raised, text};
    case OvixSvgLabel::White:
        return {raised, text, text, text};
    case OvixSvgLabel::GraphiteBlue:
        return {raised, raised, hover, accentTranslucent};
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
    if (!look.backgroundVisible)
        colours.background = VelmoPalette::transparent;
    if (!look.hoverVisible)
        colours.hover = VelmoPalette::transparent;
    if (!look.checkedBackgroundVisible)
        colours.checked = VelmoPalette::transparent;

    const QString tail = tailOf(look);
    return {
        u"QLabel { color:"_s + colours.text + u"; background-color:"_s + colours.background + u";"_s + tail + u"}"_s
            + u"QLabel:hover { background-color:"_s + colours.hover + u";"_s + tail + u"}"_s,
        u"QLabel { background-color:"_s + colours.checked + u";"_s + tail + u"}"_s,
    };
}
