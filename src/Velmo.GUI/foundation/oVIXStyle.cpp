#include "foundation/oVIXStyle.h"

#include "foundation/ExecutablePath.h"
#include "foundation/LateIcon.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QStyleFactory>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace {

constexpr int toolTipDelay = 300;

} // namespace

oVIXStyle::oVIXStyle()
{
    setBaseStyle(QStyleFactory::create(u"Fusion"_s));
}

oVIXStyle::~oVIXStyle() = default;

void oVIXStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                              const QWidget *widget) const
{
    if (element != PE_FrameFocusRect)
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

int oVIXStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                         QStyleHintReturn *returnData) const
{
    if (hint == SH_ToolTip_WakeUpDelay || hint == SH_ToolTip_FallAsleepDelay)
        return toolTipDelay;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

/// Every menu bar asks for the icon of one that is too narrow, hardly any shows it, and the first picture that a
/// program reads loads all plug-ins that read pictures: that took a tenth of the sample application's start.
QIcon oVIXStyle::standardIcon(StandardPixmap which, const QStyleOption *option, const QWidget *widget) const
{
    if (which != SP_ToolBarHorizontalExtensionButton)
        return QProxyStyle::standardIcon(which, option, widget);
    const Qt::LayoutDirection direction = option ? option->direction : QGuiApplication::layoutDirection();
    return LateIcon::of([base = QPointer<QStyle>(baseStyle()), which, direction] {
        const QStyle *style = base ? base.data() : QApplication::style(); // menu bars keep their icon
        QStyleOption directed;
        directed.direction = direction;
        return style->standardIcon(which, &directed);
    });
}

QString oVIXStyle::getAppStyleSheet()
{
    // The first family is the words of a constant's name, and two declarations of the horizontal separator lack what
    // would make them valid: the toolkit drops these, and the text stays as it is.
    // clang-format off
    return QStringLiteral(
        "QWidget {\tfont-family:\" + VELMO_FONT_REGULAR + \";}"
        "QWidget:disabled {\tcolor:rgb(81,81,81);}"
        "QMenu {    font-family: \"Inter\";    font-size: 11px;    background-color:rgb(28,28,28);}"
        "QMenu::item {    color: rgb(219,219,219);    background-color:rgb(28,28,28);    padding: 6px 15px;}"
        "QMenu::item:selected {    color: rgb(116, 211, 252);     background-color:rgb(65, 84, 92); }"
        "QMenu::item:disabled {    color: rgb(81,81,81);}"
        "QMenu::indicator {    min-width: 20px;    min-height: 20px;    margin-left: 7px;    margin-top: 3px;    margin-bottom: 3px;}"
        "QMenu::indicator:unchecked {    background-color: transparent;    border: 1px solid rgb(156,156,156);    border-radius: 2px;    width: 12px;    height: 12px;    image: none;}"
        "QMenu::indicator:checked {    background-color: rgb(22, 129, 189);    border: 1px solid rgb(22, 129, 189);    border-radius: 2px;    image: url(:/Design/CheckWhite);    width: 12px;    height: 12px;}"
        "QMenu::separator {    height: 1px;    background-color: rgb(59,59,59);    margin: 3px 0px;}"
        "QToolTip {\tborder:0px;\tbackground-color:rgb(53, 53, 53);\ttext-align:center;\tfont-family:\"Inter\";\tfont-size:11px;\tcolor:rgb(172, 177, 180);\tpadding:6px;\topacity:200;}"
        "QGroupBox {\tborder:0px solid gray;\tmargin-top:2px;\tfont-size:11px;\tpadding-top:16px;\tcolor:rgb(10, 10, 10);}"
        "QTabBar {\tborder-bottom-style:none;\tbackground:rgb(39,39,39);\tcolor:rgb(156,156,156);\ttext-align:center;}"
        "QTabBar::tab {\tmin-width:80px;\tpadding-top:4px;\tpadding-bottom:2px;\tpadding-left:6px;\tpadding-right:6px;\ttext-align:center;\tbackground:rgb(39,39,39);\tcolor:rgb(156,156,156);}"
        "QTabBar::tab:selected {\tbackground:rgb(59,59,59);\tcolor:rgb(156,156,156);}"
        "QTabWidget::pane {\tborder-top:0px;}"
        "QMainWindow::separator:vertical {    width:3px;    background: rgb(39,39,39);    margin: 0;    padding: 0;}"
        "QMainWindow::separator:horizontal {    height: 3px;    background: rgb(59,59,59);    border: 1px solidrgb(39,39,39);    margin: 0;    padding-left: 10 px;    padding-right: 10 px;}"
        "QMainWindow::separator:hover {\tbackground:rgb(81,81,81);}"
        "QScrollBar:vertical {\twidth:6px;\tborder-radius:0px;}"
        "QScrollBar::handle:vertical {\tmin-height:15px;\tborder-radius:3px;}"
        "QScrollBar::handle:vertical:hover {\tborder-radius:3px;}"
        "QScrollBar::add-line:vertical {    background: transparent;    height: 0px;    subcontrol-position: bottom;    subcontrol-origin: margin;}"
        "QScrollBar::sub-line:vertical {    background: transparent;    height: 0px;    subcontrol-position: top;    subcontrol-origin: margin;}");
    // clang-format on
}

void oVIXStyle::readQtPaths()
{
    const std::filesystem::path executable = executablePath();
    if (executable.empty())
        return;
    const QString folder = QFileInfo(executable).absolutePath();
    QCoreApplication::setLibraryPaths({folder, folder + u"/plugins"_s});
    QDir::setCurrent(folder);
}
