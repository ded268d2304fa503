#include "foundation/oVIXFrameBorder.h"

#include "foundation/FrameBorderSheet.h"
#include "foundation/VelmoPalette.h"

oVIXFrameBorder::oVIXFrameBorder(QWidget *parent) : QFrame(parent)
{
    setStyleSheet(frameBorderSheet(VelmoPalette::deep, VelmoPalette::background));
}

oVIXFrameBorder::~oVIXFrameBorder() = default;
