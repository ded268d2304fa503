#pragma once

class QWidget;

/// Makes a widget believe for good that the pointer is over it, so that its hover look can be seen beside the others.
void freezeHover(QWidget *widget);
