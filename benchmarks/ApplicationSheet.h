#pragma once

#include "foundation/oVIXStyle.h"

#include <QApplication>

/// The application-wide sheet, while it lives.
class ApplicationSheet
{
public:
    ApplicationSheet() { qApp->setStyleSheet(oVIXStyle::getAppStyleSheet()); }
    ~ApplicationSheet() { qApp->setStyleSheet(QString()); }
    Q_DISABLE_COPY_MOVE(ApplicationSheet)
};
