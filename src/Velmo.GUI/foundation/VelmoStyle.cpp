#include "foundation/VelmoStyle.h"

#include "foundation/InterFont.h"

#include <QFontMetrics>

using namespace Qt::StringLiterals;

namespace {

constexpr int dockTextPixels = 11;

QString centredPicture(const QString &image)
{
    return u"background-image:url("_s + image + u"); background-repeat: no-repeat; background-position:center;}"_s;
}

} // namespace

QString VelmoStyle::regularButtonGrayStyle(QString image, QString disabledImage)
{
    QString sheet = u"QLabel{border:0px; border-radius:4px; background-color:rgb(59,59,59);"_s + centredPicture(image)
        + u" QLabel:hover{ background-color:rgb(156,156,156);}"_s;
    if (!disabledImage.isEmpty())
        sheet += u" QLabel:disabled{background-image:url("_s + disabledImage + u");}"_s;
    return sheet;
}

QString VelmoStyle::regularButtonYellowStyle(QString image)
{
    return u"QLabel{border:0px; border-radius:4px; background-color:rgb(116, 211, 252);"_s + centredPicture(image);
}

QString VelmoStyle::labelGrayStyleAndImage(QString image)
{
    return u"QLabel{border:0px; background-color:rgb(59,59,59);"_s + centredPicture(image);
}

int VelmoStyle::styleDockTextWidth(QString text)
{
    return QFontMetrics(interFont(dockTextPixels)).horizontalAdvance(text);
}

QString VelmoStyle::styleDragDropList(bool roundLeft, bool roundRight)
{
    QString sheet = u"QListWidget {\tborder:0px;"_s;
    if (roundLeft)
        sheet += u"\tborder-top-left-radius:4px;\tborder-bottom-left-radius:4px;"_s;
    if (roundRight)
        sheet += u"\tborder-top-right-radius:4px;\tborder-bottom-right-radius:4px;"_s;
    return sheet
        + u"\tbackground-color:rgb(59,59,59);}"_s
          "QListWidget::item {\tcolor:transparent;\tbackground:transparent;}"
          "QListWidget::item:selected {\tcolor:rgb(28,28,28);\tbackground:transparent;}"_s;
}
