#include "look/ApplicationLook.h"

#include "look/Palette.h"
#include "oVIXStyle.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace {

constexpr auto fontFamily = "Inter"_L1;
constexpr int fontPixels = 11;

QPalette darkPalette()
{
    QPalette palette(Palette::text, Palette::raised, Palette::line, Palette::deep, Palette::raised, Palette::text,
                     Palette::text, Palette::deep, Palette::window);
    palette.setColor(QPalette::AlternateBase, Palette::window);
    palette.setColor(QPalette::Highlight, Palette::accent);
    palette.setColor(QPalette::HighlightedText, Palette::deep);
    palette.setColor(QPalette::PlaceholderText, Palette::disabledText);
    palette.setColor(QPalette::Link, Palette::accent);
    palette.setColor(QPalette::LinkVisited, Palette::accent);
    palette.setColor(QPalette::ToolTipBase, Palette::raised);
    palette.setColor(QPalette::ToolTipText, Palette::secondaryText);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, Palette::disabledText);
    return palette;
}

/// The application-wide sheet gives all widgets a family that no system has, and that beats any `setFont`.
void replaceFirstFamilyOf(const QString &sheet)
{
    const QString family = sheet.section(u'"', 1, 1);
    if (!family.isEmpty())
        QFont::insertSubstitution(family, fontFamily);
}

} // namespace

void ApplicationLook::install()
{
    QApplication::setStyle(new oVIXStyle);
    QApplication::setPalette(darkPalette());

    QFont font(fontFamily);
    font.setPixelSize(fontPixels);
    QApplication::setFont(font);

    const QString sheet = oVIXStyle::getAppStyleSheet();
    replaceFirstFamilyOf(sheet);
    QFont::insertSubstitution(u"default"_s, fontFamily); // what the headers of panels ask for
    qApp->setStyleSheet(sheet);
}

QString ApplicationLook::problem()
{
    if (QFontDatabase::hasFamily(fontFamily))
        return {};
    return QCoreApplication::translate("ApplicationLook", "The font \"%1\" is not installed; texts look different.")
        .arg(fontFamily);
}
