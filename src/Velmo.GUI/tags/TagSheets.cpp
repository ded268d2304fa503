#include "tags/TagSheets.h"

#include "foundation/VelmoColor.h"

#include <QColor>

using namespace Qt::StringLiterals;

namespace {

constexpr int disabledAlpha = 127;
constexpr int hoverLightness = 120;

QColor withAlpha(QColor colour, int alpha)
{
    colour.setAlpha(alpha);
    return colour;
}

// clang-format off
QString scrollBar(QLatin1StringView disabledHandle)
{
    return u"QScrollBar:vertical {\twidth: 10px;\tbackground:rgb(59,59,59);   border-radius: 5px;}"
            "QScrollBar::handle:vertical {\tbackground:rgb(39,39,39);\tmargin:2;\tmin-height: 20px;}"
            "QScrollBar::handle:vertical:hover {\tbackground:rgb(116, 211, 252);}"
            "QScrollBar::handle:vertical:disabled {\tbackground:%1;}"_s.arg(disabledHandle);
}
// clang-format on

} // namespace

// clang-format off
QString TagSheets::dragTag(const QString &background, const QColor &text, int leftPadding)
{
    return u"oVIXDragTag {"
            "\tbackground-color:%1;"
            "\tcolor:%2;"
            "\tmargin-left:4px;"
            "\tmargin-top:4px;"
            "\tmargin-bottom:0px;"
            "\tpadding-left:%3px;"
            "\tpadding-bottom:2px;"
            "\tborder:0px solid transparent;"
            "\tborder-radius:3px;"
            "\tfont-family:Inter; "
            "\tfont-size:11px;}"
            "oVIXDragTag:disabled {"
            "\tbackground-color:rgb(81,81,81);"
            "\tcolor:rgb(156,156,156);}"_s
        .arg(background, VelmoColor::colorToSheet(text), QString::number(leftPadding));
}

QString TagSheets::addLine(const QColor &background, const QColor &text)
{
    return u"QLineEdit {"
            "\tmargin-left:25px;"
            "\tmargin-top:4px;"
            "\tmargin-bottom:0px;"
            "\tpadding-left:5px;"
            "\tbackground-color:%1;"
            "\tcolor:%2;"
            "\tborder:0px;"
            "\tborder-radius:3px;}"_s
        .arg(VelmoColor::colorToSheet(background), VelmoColor::colorToSheet(text));
}

QString TagSheets::tagList(const QColor &tag, const QColor &text)
{
    return u"QListWidget {\tbackground:transparent;\tcolor: transparent;}"
            "oVIXTagListWidgetItem {"
            "\tmargin-left:5px;"
            "\tmargin-top:2px;"
            "\tmargin-bottom:2px;"
            "\tmargin-right:5px;"
            "\tpadding-left:10px;"
            "   font-size:11px;"
            "  \tfont-family:Inter;"
            "\tbackground:%1;"
            "\tcolor:%2;"
            "\tborder:0px;"
            "\tborder-radius:3px;}"
            "oVIXTagListWidgetItem:disabled {\tbackground:%3;\tcolor:%4;}"
            "oVIXTagListWidgetItem:hover {\tbackground:%5;}"
            "QListWidget::item:selected {\tbackground: transparent;\tcolor:transparent;}"_s
        .arg(VelmoColor::colorToSheet(tag),
             VelmoColor::colorToSheet(text),
             VelmoColor::colorToSheet(withAlpha(tag, disabledAlpha)),
             VelmoColor::colorToSheet(withAlpha(text, disabledAlpha)),
             VelmoColor::colorToSheet(tag.lighter(hoverLightness)));
}
// clang-format on

QString TagSheets::dropListScrollBar()
{
    return scrollBar("rgb(59,59,59)"_L1);
}

QString TagSheets::tagListScrollBar()
{
    return scrollBar("rgba(39,39,39,125)"_L1);
}

QString TagSheets::paneList()
{
    return u"QListWidget {\tborder:0px;"_s;
}

QString TagSheets::paneTitle()
{
    return u"QLabel { color: rgb(219,219,219); } QLabel:disabled { color: rgb(156,156,156); }"_s;
}

QString TagSheets::paneSeparator(QLatin1StringView colour)
{
    return u"QWidget {\tborder:0px;\tbackground-color:%1;}"_s.arg(colour);
}
