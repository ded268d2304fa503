#include "browser/BrowserRow.h"

#include "foundation/SheetOnChange.h"
#include "foundation/VelmoPalette.h"

#include <QHelpEvent>
#include <QToolTip>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString rowSheet(const QString &border, const QString &background, const QString &text)
{
    // clang-format off
    return u"#backgroundWidget {\tmargin:2px;%1\tborder-radius:3px;\tbackground-color:%2;\tcolor:%3;}"
            "#backgroundWidget:disabled {\tbackground-color:rgb(59,59,59);\tborder-color:rgb(39,39,39);}"
            "QLabel { \tcolor:%3; \tbackground-color:transparent;}"_s.arg(border, background, text);
    // clang-format on
}

} // namespace

void BrowserRow::setLook(QWidget *background, bool isAccented, bool isHovered, const QString &border)
{
    QLatin1String surface = VelmoPalette::background;
    QLatin1String text = VelmoPalette::secondaryText;
    if (isAccented) {
        surface = VelmoPalette::accentTranslucent;
        text = VelmoPalette::accent;
    } else if (isHovered) {
        surface = VelmoPalette::hover;
        text = VelmoPalette::white;
    }
    setSheetOnChange(background, rowSheet(border, surface, text));
}

bool BrowserRow::followsPointer(const QEvent *event, bool *isHovered)
{
    if (event->type() != QEvent::Enter && event->type() != QEvent::Leave)
        return false;
    *isHovered = event->type() == QEvent::Enter;
    return true;
}

bool BrowserRow::showsPlainToolTip(QWidget *widget, const QEvent *event)
{
    if (event->type() != QEvent::ToolTip || widget->toolTip().isEmpty())
        return false;
    const QString shown = u"<p style='white-space:pre-wrap'>%1</p>"_s.arg(widget->toolTip().toHtmlEscaped());
    QToolTip::showText(static_cast<const QHelpEvent *>(event)->globalPos(), shown, widget);
    return true;
}

void BrowserRow::fixWidth(QWidget *column, int width)
{
    column->setFixedWidth(std::clamp(width, 0, QWIDGETSIZE_MAX));
}
