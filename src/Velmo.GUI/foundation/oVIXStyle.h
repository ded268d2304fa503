#pragma once

#include "VelmoGuiExport.h"

#include <QProxyStyle>

/// The application's style: "Fusion" without focus rectangles and with tool tips after 300 ms.
///
/// The style makes a base style of its own and owns it; the application's style is not touched. Install it with
/// `QApplication::setStyle`, which takes ownership, and give `getAppStyleSheet()` to `QApplication::setStyleSheet`.
class VELMO_GUI_EXPORT oVIXStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// A style on top of a "Fusion" of its own.
    oVIXStyle();
    ~oVIXStyle() override;

    /// Draws nothing for `QStyle::PE_FrameFocusRect`.
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    /// 300 for both tool tip delays, in milliseconds.
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr, const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;
    /// The base style's icons. The one of a menu bar that is too narrow for its menus is made when it is drawn.
    QIcon standardIcon(StandardPixmap which, const QStyleOption *option = nullptr,
                       const QWidget *widget = nullptr) const override;

    /// The application-wide style sheet, always the same text.
    static QString getAppStyleSheet();

    /// Makes the executable's folder the current folder, and that folder and its "plugins" the only library paths.
    /// Call it once, before the first plug-in is loaded. An application object made afterwards adds its own folder, the
    /// same one, at the end of the library paths. Does nothing when the system does not tell the path.
    static void readQtPaths();
};
