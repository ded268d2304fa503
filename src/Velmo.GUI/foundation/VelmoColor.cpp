#include "foundation/VelmoColor.h"

#include <QColor>

using namespace Qt::StringLiterals;

QString VelmoColor::colorToSheet(const QColor &color)
{
    return u"rgb(%1, %2, %3)"_s.arg(QString::number(color.red()), QString::number(color.green()),
                                    QString::number(color.blue()));
}
